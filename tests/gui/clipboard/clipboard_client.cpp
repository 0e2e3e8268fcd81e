// clipboard_client: another client of the clipboard. It says "ready" when it is.
//
//     own STRING abc COMPOUND_TEXT xyz    has the clipboard, and hands it out in these formats
//     own-and-die STRING abc              the same, and ends when it is asked for one of them
//     own-and-clear STRING abc            the same, and has nothing any more when it was asked once
//     motif abc                           puts a text there by the toolkit's calls
//     paste                               prints the text that is there, by the toolkit's calls
//     lock 500                            keeps the clipboard locked for so many milliseconds
//     try-lock                            its exit status is 0 when nobody has locked the clipboard

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xatom.h>
#include <Xm/CutPaste.h>
#include <Xm/Xm.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace {

using Arguments = std::vector<std::string>;

std::map<Atom, std::string> offers;
bool diesWhenAsked = false;
bool clearsWhenAsked = false;

void say(const std::string& text)
{
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
}

void give(const void* bytes, std::size_t size, XtPointer* value)
{
    *value = XtMalloc(static_cast<Cardinal>(size + 1));
    std::copy_n(static_cast<const char*>(bytes), size, static_cast<char*>(*value));
}

Boolean convert(Widget widget, Atom*, Atom* target, Atom* type, XtPointer* value,
                unsigned long* length, int* format)
{
    if (*target == XInternAtom(XtDisplay(widget), "TARGETS", False)) {
        std::vector<Atom> targets;
        for (const auto& [offer, text] : offers) targets.push_back(offer);
        give(targets.data(), targets.size() * sizeof(Atom), value);
        *type = XA_ATOM;
        *format = 32;
        *length = targets.size();
        return True;
    }
    const auto offer = offers.find(*target);
    if (offer == offers.end()) return False;
    if (diesWhenAsked) std::_Exit(EXIT_SUCCESS);
    give(offer->second.data(), offer->second.size(), value);
    *type = *target;
    *format = 8;
    *length = offer->second.size();
    if (clearsWhenAsked) offers.clear();
    return True;
}

int own(Widget shell, const Arguments& arguments)
{
    Display* const display = XtDisplay(shell);
    for (std::size_t i = 1; i + 1 < arguments.size(); i += 2)
        offers[XInternAtom(display, arguments[i].c_str(), False)] = arguments[i + 1];
    diesWhenAsked = arguments[0] == "own-and-die";
    clearsWhenAsked = arguments[0] == "own-and-clear";
    if (!XtOwnSelection(shell, XInternAtom(display, "CLIPBOARD", False), CurrentTime, convert,
                        nullptr, nullptr))
        return EXIT_FAILURE;
    XSync(display, False);
    say("ready");
    XtAppMainLoop(XtWidgetToApplicationContext(shell));
    return EXIT_SUCCESS;
}

int ownByToolkit(Widget shell, std::string text)
{
    Display* const display = XtDisplay(shell);
    XmString const label = XmStringCreateLocalized(const_cast<char*>("client"));
    long item = 0;
    const int started =
        XmClipboardStartCopy(display, XtWindow(shell), label, CurrentTime, nullptr, nullptr, &item);
    XmStringFree(label);
    if (started != ClipboardSuccess ||
        XmClipboardCopy(display, XtWindow(shell), item, const_cast<char*>("STRING"), text.data(),
                        text.size(), 0, nullptr) != ClipboardSuccess ||
        XmClipboardEndCopy(display, XtWindow(shell), item) != ClipboardSuccess)
        return EXIT_FAILURE;
    XSync(display, False);
    say("ready");
    XtAppMainLoop(XtWidgetToApplicationContext(shell));
    return EXIT_SUCCESS;
}

int paste(Widget shell)
{
    char text[100] = "";
    unsigned long length = 0;
    const int status =
        XmClipboardRetrieve(XtDisplay(shell), XtWindow(shell), const_cast<char*>("STRING"), text,
                            sizeof text, &length, nullptr);
    say(std::string{text, length});
    return status == ClipboardSuccess ? EXIT_SUCCESS : EXIT_FAILURE;
}

int lock(Widget shell, int milliseconds)
{
    Display* const display = XtDisplay(shell);
    if (XmClipboardLock(display, XtWindow(shell)) != ClipboardSuccess) return EXIT_FAILURE;
    XSync(display, False);
    if (milliseconds > 0) say("ready");
    std::this_thread::sleep_for(std::chrono::milliseconds{milliseconds});
    XmClipboardUnlock(display, XtWindow(shell), True);
    XSync(display, False);
    return EXIT_SUCCESS;
}

int run(Widget shell, const Arguments& arguments)
{
    if (arguments[0].starts_with("own")) return own(shell, arguments);
    if (arguments[0] == "motif") return ownByToolkit(shell, arguments[1]);
    if (arguments[0] == "paste") return paste(shell);
    if (arguments[0] == "lock") return lock(shell, std::stoi(arguments[1]));
    return lock(shell, 0);
}

}  // namespace

int main(int argc, char** argv)
{
    const Arguments arguments{argv + 1, argv + argc};
    if (arguments.empty()) return EXIT_FAILURE;
    XtAppContext application;
    int count = 1;
    Widget const shell = XtVaOpenApplication(
        &application, "Client", nullptr, 0, &count, argv, nullptr, applicationShellWidgetClass,
        XtNmappedWhenManaged, False, XtNwidth, 1, XtNheight, 1, nullptr);
    XtRealizeWidget(shell);
    return run(shell, arguments);
}
