#include "printing_support.h"

namespace kite::testing {

int print(const char* file, int wrap)
{
    return guiPrintFile(file, 0, 0, 0, 0, 0, 0, wrap);
}

std::string printed(const char* file, int wrap)
{
    auto& host = HostDouble::instance();
    const std::size_t before = host.commands().size();
    const int result = print(file, wrap);
    EXPECT_FALSE(printShell());
    const bool hasRun = host.commands().size() == before + 1;
    EXPECT_EQ(result, hasRun ? 0 : -1);
    if (!hasRun) return {};
    const ExecCall& call = host.commands().back();
    EXPECT_EQ(call.flag1, 1);
    EXPECT_EQ(call.flag2, 1);
    return call.command;
}

int printWhile(const std::function<void()>& look, int result)
{
    auto& host = HostDouble::instance();
    bool hasRun = false;
    host.onExec([&](const std::string&) {
        hasRun = true;
        look();
        return result;
    });
    const int printed = print("file");
    EXPECT_TRUE(hasRun);
    host.onExec(nullptr);
    return printed;
}

Widget printShell()
{
    return findWidget("v_printshell");
}

Widget printBox()
{
    return findWidget("v_printbox");
}

Widget printLabel()
{
    return findWidget("v_prnlabel");
}

}  // namespace kite::testing
