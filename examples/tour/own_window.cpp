// own_window.cpp: a window of the host's own, made with Motif, that boxes of the library belong to.

#include <X11/Intrinsic.h>
#include <Xm/DialogS.h>
#include <Xm/Text.h>
#include <kitegui.h>

#include "boxes.h"
#include "report.h"

namespace tour {

namespace {

GuiWidget createWindow(GuiWidget parent)
{
    Widget const shell = XtVaCreatePopupShell("own", xmDialogShellWidgetClass, parent, XmNtitle,
                                              "A window of the host's own", nullptr);
    return XtVaCreateWidget("text", xmTextWidgetClass, shell, XmNeditMode, XmMULTI_LINE_EDIT,
                            XmNrows, 8, XmNcolumns, 40, nullptr);
}

}  // namespace

// Its text is rich text, as far as the library knows it.
void showOwnWindow()
{
    GuiWidget const frame = guiGetTopWnd();
    GuiWidget const text = createWindow(frame);
    guiHTML2Rich(text, "<h1>A window of the host's own</h1>with a text of the library's");
    XtManageChild(text);
    guiSetOwner(XtParent(text));
    guiSetTopWnd(nullptr);
    guiInfoBox("This box belongs to the window of the host.");
    guiSetTopWnd(frame);
    guiSetOwner(frame);
    XtDestroyWidget(XtParent(text));
    report("The window was closed");
}

}  // namespace tour
