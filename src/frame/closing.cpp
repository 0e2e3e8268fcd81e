// closing.cpp: closes the top window, whatever it is.

#include <Xm/Xm.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "frame/decoration.h"
#include "frame/dispatcher.h"
#include "frame/frame_fonts.h"
#include "frame/log_file.h"
#include "frame/main_frame.h"
#include "frame/settings.h"
#include "frame/top_window.h"
#include "toolkit/resources.h"
#include "toolkit/shells.h"
#include "toolkit/widget_ref.h"

namespace kite::frame {

namespace {

// The settings are the host's: it may close the frame when it is asked for one.
void saveGeometry(Widget shell)
{
    // The place of an icon is no place to open at.
    if (resource<Boolean>(shell, XmNiconic) || !settings::savesGeometry()) return;
    if (widgets().shell == shell) settings::saveGeometry(placeOf(shell));
}

// A dialog or box lives in a shell of its own below the window that it belongs to. A host's widget may
// live anywhere else: then the frame is next.
void closeDialog(Widget dialog)
{
    Widget const shell = shellOf(dialog);
    Widget const parent = XtParent(shell);
    if (dialog != shell) XtUnmanageChild(dialog);
    XtDestroyWidget(shell);
    setTopWindow(parent && parent != widgets().shell ? parent : mainWindow());
}

void closeTopWindow()
{
    Widget const top = topWindow();
    if (mainWindow() && shellOf(top) == widgets().shell)
        close();
    else
        closeDialog(top);
}

}  // namespace

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
    XtDestroyWidget(shell);
}

}  // namespace kite::frame

int guiClose(int code)
{
    if (!kite::topWindow()) return 0;
    if (code < 0) kite::reportMisuse("Close: negative return code - 0 is used");
    const kite::EventsSuppressed quiet;
    if (kite::topWindow()) kite::frame::closeTopWindow();
    return 0;
}
