// drag_source: another client, which offers a file name for dragging: press button 2 in its window and
// drag. Arguments: the name, and optionally "text" to offer plain text as well.

#include <Xm/Display.h>
#include <Xm/DragDrop.h>
#include <Xm/Label.h>
#include <Xm/Xm.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

struct Offer {
    const char* name;
    bool alsoText;
} offer;

Atom atom(Widget widget, const char* name)
{
    return XInternAtom(XtDisplay(widget), name, False);
}

Boolean convert(Widget context, Atom*, Atom* target, Atom* type, XtPointer* value,
                unsigned long* length, int* format, unsigned long*, XtPointer, XtRequestId*)
{
    if (*target != atom(context, "FILE_NAME") && *target != XA_STRING) return False;
    *type = XA_STRING;
    *format = 8;
    *length = std::strlen(offer.name);
    *value = XtNewString(const_cast<char*>(offer.name));
    return True;
}

void beginDrag(Widget label, XEvent* event, String*, Cardinal*)
{
    std::vector<Atom> targets{atom(label, "FILE_NAME")};
    if (offer.alsoText) targets.push_back(XA_STRING);
    Arg arguments[4];
    XtSetArg(arguments[0], XmNexportTargets, targets.data());
    XtSetArg(arguments[1], XmNnumExportTargets, targets.size());
    XtSetArg(arguments[2], XmNdragOperations, XmDROP_COPY);
    XtSetArg(arguments[3], XmNconvertProc, convert);
    XmDragStart(label, event, arguments, 4);
}

}  // namespace

int main(int argc, char** argv)
{
    offer = {argc > 1 ? argv[1] : "", argc > 2 && std::strcmp(argv[2], "text") == 0};
    XtAppContext application;
    int count = 1;
    Widget shell = XtVaOpenApplication(&application, "source", nullptr, 0, &count, argv, nullptr,
                                       applicationShellWidgetClass, XmNwidth, 120, XmNheight, 60,
                                       XmNx, 10, XmNy, 30, nullptr);
    XtActionsRec actions[] = {{const_cast<char*>("beginDrag"), beginDrag}};
    XtAppAddActions(application, actions, 1);
    XtVaCreateManagedWidget("drag me", xmLabelWidgetClass, shell, XmNtranslations,
                            XtParseTranslationTable("<Btn2Down>: beginDrag()"), nullptr);
    // The preregistered protocol grabs the server, and no other client could move the pointer then.
    XtVaSetValues(XmGetXmDisplay(XtDisplay(shell)), XmNdragInitiatorProtocolStyle, XmDRAG_DYNAMIC,
                  nullptr);
    XtRealizeWidget(shell);
    XtAppMainLoop(application);
}
