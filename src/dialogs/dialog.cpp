// dialog.cpp: a dialog from its first widget until it is run.

#include <Xm/BulletinB.h>
#include <Xm/DialogS.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/dialog_font.h"
#include "dialogs/dialog_run.h"
#include "frame/closing.h"
#include "frame/deferred_start.h"
#include "frame/dispatcher.h"
#include "frame/frame_fonts.h"
#include "frame/top_window.h"
#include "toolkit/compound_string.h"
#include "toolkit/displayable_text.h"
#include "toolkit/painted_labels.h"
#include "toolkit/resources.h"
#include "toolkit/shells.h"

namespace kite {

namespace {

void closeRequested(Widget, XtPointer board, XtPointer)
{
    frame::answerCloseRequest(static_cast<Widget>(board));
}

Widget createShell(const char* title)
{
    Widget const parent = boxParent();
    if (!parent) return nullptr;
    return XtVaCreatePopupShell("v_dlgshell", xmDialogShellWidgetClass, parent, XmNtitle,
                                displayableText(title).c_str(), XmNallowShellResize, False,
                                nullptr);
}

Widget createBoard(Widget shell, const char* title)
{
    const CompoundString dialogTitle{title};
    return XtVaCreateWidget("v_dlgbbr", xmBulletinBoardWidgetClass, shell, XmNdialogStyle,
                            XmDIALOG_FULL_APPLICATION_MODAL, XmNdialogTitle, dialogTitle.get(),
                            XmNautoUnmanage, False, XmNnoResize, True, XmNnavigationType,
                            XmSTICKY_TAB_GROUP, XmNresizePolicy, XmRESIZE_NONE, XmNmarginWidth, 0,
                            XmNmarginHeight, 0, XmNuserData, nullptr, nullptr);
}

XmFontList fontOf(Widget board)
{
    XmFontList const font = frameFonts::of(board, frameFonts::Use::Dialog);
    if (!font) return resource<XmFontList>(board, XmNlabelFontList);
    XtVaSetValues(board, XmNlabelFontList, font, XmNbuttonFontList, font, XmNtextFontList, font,
                  nullptr);
    return font;
}

// -1 after an error box; the shell goes with what was made in it.
int destroy(Widget shell, const char* message)
{
    destroyShell(shell);
    return reportMisuse("%s", message);
}

int prepare(const char* title)
{
    Widget const shell = createShell(title);
    if (!shell) return reportMisuse("Dialog: cannot create dialog shell");
    freePaintedLabelsWith(shell);
    Widget const board = createBoard(shell, title);
    if (!board) return destroy(shell, "Dialog: cannot create bulletin board widget");
    onCloseRequest(shell, closeRequested, board);
    XmFontList const font = fontOf(board);
    if (!font) return destroy(shell, "Dialog: cannot allocate dialog font");
    const auto measures = measureFirstFont(font);
    if (!measures) return destroy(shell, "Dialog: cannot retrieve dialog font");
    building::begin(board, font, *measures);
    return 0;
}

bool abandon()
{
    Widget const board = building::board();
    if (!board) return false;
    deferred::withdrawDialog();
    building::forget();
    destroyShell(shellOf(board));
    return true;
}

// A dialog that was asked for already is still run.
void restart()
{
    if (building::isPrepared()) abandon();
}

// The handler of a dialog stands in its board's user data, where the dispatcher looks for it.
void setHandler(GuiHandler handler)
{
    building::end();
    XtVaSetValues(building::board(), XmNuserData, reinterpret_cast<XtPointer>(handler), nullptr);
}

int runDeferred()
{
    // It may have been destroyed since: then it is over before it began.
    return building::board() ? dialogRun::run() : 0;
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiDialog(const char* title)
{
    if (!dispatcher::isStarted()) return reportMisuse("Dialog: the system must be started first");
    if (deferred::isDialogRequested())
        return reportMisuse("Dialog: handlers must return after StartDialog");
    if (building::isPrepared())
        return reportMisuse("Dialog: you must start the previous dialog first");
    frame::setDialogActions({abandon, restart, dialogRun::noteCode});
    return prepare(title);
}

int guiStartDialog(void)
{
    if (!building::isPrepared()) return reportMisuse("StartDialog: no prepared dialog");
    setHandler(nullptr);
    deferred::startDialog(runDeferred);
    return 0;
}

int guiRunDialog(GuiHandler handler)
{
    if (!building::isPrepared()) return reportMisuse("RunDialog: no prepared dialog");
    setHandler(handler);
    return dialogRun::run();
}
