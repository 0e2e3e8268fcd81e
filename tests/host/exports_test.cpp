// exports_test.cpp: what the library shows to others.

#include "host_test.h"

#include <array>
#include <cstdio>
#include <memory>
#include <sstream>

namespace {

std::vector<std::string> linesOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> output{popen(command.c_str(), "r"), pclose};
    std::vector<std::string> lines;
    std::array<char, 4096> line{};
    while (output && std::fgets(line.data(), line.size(), output.get())) {
        std::istringstream text{line.data()};
        std::string trimmed;
        std::getline(text, trimmed);
        lines.push_back(trimmed);
    }
    return lines;
}

TEST(Exports, AreTheSevenServicesAndNothingElse)
{
    const std::string list =
        "nm -D --defined-only '" KITEHOST_LIBRARY "' | cut -d' ' -f3 | LC_ALL=C sort";
    EXPECT_EQ(linesOf(list),
              (std::vector<std::string>{"kxAppDir", "kxExec", "kxFullName", "kxGetUPInt",
                                        "kxGetUPStr", "kxLocNamePos", "kxSetUPInt"}));
}

TEST(Exports, NameOfTheLibraryHasItsVersion)
{
    const std::string name = "objdump -p '" KITEHOST_LIBRARY "' | sed -n 's/ *SONAME *//p'";
    const std::vector<std::string> lines = linesOf(name);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].starts_with("libkitehost.so.")) << lines[0];
}

}  // namespace
