// told_warnings.cpp: in a program that it is loaded into, it takes the place of the toolkit's warnings and prints
// them, and says where the program was when it crashed (as the sanitizers do by themselves).

#include <X11/Intrinsic.h>
#include <execinfo.h>

#include <csignal>
#include <cstdio>
#include <initializer_list>
#include <string>

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

// What is no mistake of the program's. A menu comes up without keyboard or pointer when another program has it just
// then, as the window manager while a key of its own is held. And Motif's own translations of text fields give an
// action a parameter that it does not know.
static bool isToBeTold(const std::string& text)
{
    return text.find("XtGrab") == std::string::npos &&
           text.find("TextFieldDirectionActionParam") == std::string::npos;
}

static void tell(const std::string& text)
{
    if (isToBeTold(text)) std::fprintf(stderr, "Toolkit warning: %s\n", text.c_str());
}

extern "C" {

void XtAppWarningMsg(XtAppContext, _Xconst _XtString name, _Xconst _XtString type,
                     _Xconst _XtString, _Xconst _XtString text, String* parameters, Cardinal* count)
{
    std::string all = std::string{name} + ", " + type + ": " + text;
    for (Cardinal i = 0; count && i < *count; ++i) all += std::string{" | "} + parameters[i];
    tell(all);
}

void XtWarningMsg(_Xconst _XtString name, _Xconst _XtString type, _Xconst _XtString kind,
                  _Xconst _XtString text, String* parameters, Cardinal* count)
{
    XtAppWarningMsg(nullptr, name, type, kind, text, parameters, count);
}

void XtAppWarning(XtAppContext, _Xconst _XtString text)
{
    tell(text);
}

void XtWarning(_Xconst _XtString text)
{
    tell(text);
}

}  // extern "C"
