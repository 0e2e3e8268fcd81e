// replay.cpp: feeds every file of a directory to a fuzz target. A finding ends the program.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<char> contentsOf(const std::filesystem::path& path)
{
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::puts("usage: replay DIRECTORY");
        return 2;
    }
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator{argv[1]}) {
        const std::vector<char> bytes = contentsOf(entry.path());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++count;
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
