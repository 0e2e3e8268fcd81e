// host_services.cpp: a host without a profile, so that no file access blurs a figure.

#include <kitegui.h>

int kxGetUPInt(const char*, const char*, int defaultValue)
{
    return defaultValue;
}

void kxSetUPInt(const char*, const char*, int) {}

void kxGetUPStr(const char*, const char*, char*, int) {}

const char* kxAppDir(void)
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
    return GUI_FAILED;
}
