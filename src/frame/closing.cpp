// closing.cpp: closes the top window, whatever it is.

#include "frame/closing.h"

#include <Xm/Xm.h>
#include <kitegui.h>

#include <algorithm>

#include "boxes/misuse.h"
#include "frame/decoration.h"
#include "frame/dispatcher.h"
#include "frame/hover.h"
#include "frame/log_file.h"
#include "frame/main_frame.h"
#include "frame/main_loop.h"
#include "frame/settings.h"
#include "frame/top_window.h"
#include "toolkit/nested_loop.h"
#include "toolkit/resources.h"
#include "toolkit/shells.h"
#include "toolkit/widget_ref.h"

namespace kite::frame {

namespace {

DialogActions dialogs{nullptr, nullptr, nullptr};  // set by the first dialog

// The settings are the host's: it may close the frame when it is asked for one.
void saveGeometry(Widget shell)
{
    // The place of an icon is no place to open at.
    if (resource<Boolean>(shell, XmNiconic) || !settings::savesGeometry()) return;
    if (widgets().shell == shell) settings::saveGeometry(placeOf(shell));
}

// A dialog or box lives in a shell of its own below the window that it belongs to. A host's widget may
// live anywhere else: then the frame is next.
void closeDialog(Widget dialog, int loopsBefore)
{
    Widget const shell = shellOf(dialog);
    Widget const parent = XtParent(shell);
    if (dialog != shell) XtUnmanageChild(dialog);
    takeAway(shell, loopsBefore);
    setTopWindow(parent && parent != widgets().shell ? parent : mainWindow());
}

void closeTopWindow(int code)
{
    Widget const top = topWindow();
    const auto loopsBefore = dialogs.noteCode ? dialogs.noteCode(top, code) : std::nullopt;
    if (mainWindow() && shellOf(top) == widgets().shell)
        close();
    else
        closeDialog(top, loopsBefore.value_or(loopsRunning()));
}

}  // namespace

void answerCloseRequest(Widget window)
{
    hover::cancel();
    if (topWindow() == window)
        raise(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE);
    else
        guiBeep();
}

void setDialogActions(const DialogActions& actions)
{
    dialogs = actions;
}

void restartDialogs()
{
    if (dialogs.restart) dialogs.restart();
}

void close()
{
    Widget const shell = widgets().shell;
    const WidgetRef mainWindow{widgets().mainWindow};
    saveGeometry(shell);
    outputLog().stop();
    if (!mainWindow) return;  // the host's services ran meanwhile, and closed it
    setMainWindow(nullptr);
    setTopWindow(nullptr);
    XtUnmanageChild(mainWindow.get());
    takeAway(shell, loopsBeforeFrame());
}

}  // namespace kite::frame

int guiClose(int code)
{
    if (!kite::topWindow()) return 0;
    const auto abandonDialog = kite::frame::dialogs.abandon;
    if (abandonDialog && abandonDialog()) return 0;
    if (code < 0) kite::reportMisuse("Close: negative return code - 0 is used");
    const kite::EventsSuppressed quiet;
    if (kite::topWindow()) kite::frame::closeTopWindow(std::max(code, 0));
    return 0;
}
