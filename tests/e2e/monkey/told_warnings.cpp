// told_warnings.cpp: in a program that it is loaded into, it takes the place of the toolkit's warnings and prints
// them, and says where the program was when it crashed (as the sanitizers do by themselves).

#include <X11/Intrinsic.h>
#include <execinfo.h>

#include <csignal>
#include <cstdio>
#include <initializer_list>
#include <string_view>

#ifndef __SANITIZE_ADDRESS__
namespace {

void crashed(int signal)
{
    constexpr int kDeepest = 40;
    void* frames[kDeepest];
    backtrace_symbols_fd(frames, backtrace(frames, kDeepest), 2);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

__attribute__((constructor)) void catchCrashes()
{
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGABRT}) std::signal(signal, crashed);
}

}  // namespace
#endif

// A menu comes up without the keyboard when another program has it just then, as the window manager while a key of
// its own is held. That is no mistake of anybody's.
static bool isToBeTold(const char* text)
{
    return std::string_view{text}.find("XtGrabKeyboard failed") == std::string_view::npos;
}

extern "C" {

void XtAppWarningMsg(XtAppContext, _Xconst _XtString name, _Xconst _XtString type,
                     _Xconst _XtString, _Xconst _XtString text, String*, Cardinal*)
{
    if (!isToBeTold(text)) return;
    std::fprintf(stderr, "Toolkit warning %s, %s: %s\n", name, type, text);
}

void XtWarningMsg(_Xconst _XtString name, _Xconst _XtString type, _Xconst _XtString kind,
                  _Xconst _XtString text, String* parameters, Cardinal* count)
{
    XtAppWarningMsg(nullptr, name, type, kind, text, parameters, count);
}

void XtAppWarning(XtAppContext, _Xconst _XtString text)
{
    std::fprintf(stderr, "Toolkit warning: %s\n", text);
}

void XtWarning(_Xconst _XtString text)
{
    XtAppWarning(nullptr, text);
}

}  // extern "C"
