// outside_host.cpp: a host in C++, with host services of its own. It needs no display: it asks for what
// holds before guiInit, and keeps a log.

#include <kitegui.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

int kxGetUPInt(const char*, const char*, int defaultValue)
{
    return defaultValue;
}

void kxSetUPInt(const char*, const char*, int) {}

void kxGetUPStr(const char*, const char*, char*, int) {}

const char* kxAppDir()
{
    return "./";
}

const char* kxFullName(const char* path)
{
    return path;
}

int kxLocNamePos(const char*)
{
    return 0;
}

int kxExec(const char*, int, int)
{
    return -1;
}

namespace {

int failures = 0;

void expect(bool holds, const char* what)
{
    if (holds) return;
    std::printf("outside_host.cpp: not so: %s\n", what);
    ++failures;
}

std::string contentsOf(const char* path)
{
    std::ifstream file{path};
    return {std::istreambuf_iterator<char>{file}, {}};
}

}  // namespace

int main()
{
    expect(guiGetTopWnd() == nullptr, "there is no top window");
    expect(guiUserBreak() == 0, "nobody has asked for a break");
    {
        LogFile log;
        log.start("outside_host.log", 1);
        log.write("from outside", 1);
        log.stop();
    }
    const std::string log = contentsOf("outside_host.log");
    expect(log.find(">>>LogStarted: ") != std::string::npos, "the log has a start line");
    expect(log.find("from outside\n") != std::string::npos, "the log has what was written");
    std::puts(failures == 0 ? "outside_host.cpp: ok" : "outside_host.cpp: failed");
    return failures == 0 ? 0 : 1;
}
