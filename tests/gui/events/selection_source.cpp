// selection_source: another client, which has selected the text of its argument and hands it out as text
// and as nothing else.

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xatom.h>

#include <cstdlib>
#include <cstring>

namespace {

const char* selected = "";  // set by main

Boolean convert(Widget widget, Atom*, Atom* target, Atom* type, XtPointer* value,
                unsigned long* length, int* format)
{
    if (*target == XInternAtom(XtDisplay(widget), "TARGETS", False)) {
        auto* const targets = reinterpret_cast<Atom*>(XtMalloc(sizeof(Atom)));
        *targets = XA_STRING;
        *value = targets;
        *type = XA_ATOM;
        *format = 32;
        *length = 1;
        return True;
    }
    if (*target != XA_STRING) return False;
    *value = XtNewString(const_cast<char*>(selected));
    *type = XA_STRING;
    *format = 8;
    *length = std::strlen(selected);
    return True;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return EXIT_FAILURE;
    selected = argv[1];
    XtAppContext application;
    int count = 1;
    Widget const shell = XtVaOpenApplication(
        &application, "Source", nullptr, 0, &count, argv, nullptr, applicationShellWidgetClass,
        XtNmappedWhenManaged, False, XtNwidth, 1, XtNheight, 1, nullptr);
    XtRealizeWidget(shell);
    XtOwnSelection(shell, XA_PRIMARY, CurrentTime, convert, nullptr, nullptr);
    XtAppMainLoop(application);
}
