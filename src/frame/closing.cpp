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

namespace kite::frame {

namespace {

void saveGeometry(Widget shell)
{
    // The place of an icon is no place to open at.
    if (resource<Boolean>(shell, XmNiconic) || !settings::savesGeometry()) return;
    const auto width = resource<Dimension>(shell, XmNwidth);
    const auto height = resource<Dimension>(shell, XmNheight);
    const auto position = decoratedPosition(shell);
    settings::saveGeometry({position.x, position.y, width, height});
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
    Widget const mainWindow = widgets().mainWindow;
    saveGeometry(shell);
    outputLog().stop();
    setMainWindow(nullptr);
    setTopWindow(nullptr);
    XtUnmanageChild(mainWindow);
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
