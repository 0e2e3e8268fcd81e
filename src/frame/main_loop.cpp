#include "frame/main_loop.h"

#include <Xm/Xm.h>
#include <kitegui.h>

#include "frame/decoration.h"
#include "frame/dispatcher.h"
#include "frame/frame_fonts.h"
#include "frame/hover.h"
#include "frame/main_frame.h"
#include "frame/session.h"
#include "frame/timer.h"
#include "frame/top_window.h"
#include "toolkit/nested_loop.h"

namespace kite {

namespace {

bool isRunning = false;  // a handler may call guiStart again: there is one loop

void runUntilClosed(GuiHandler handler)
{
    XtVaSetValues(mainWindow(), XmNuserData, reinterpret_cast<XtPointer>(handler), nullptr);
    Widget const anyWidget = mainWindow();
    dispatcher::showFrame();
    if (mainWindow()) processEventsWhile(anyWidget, [] { return mainWindow() != nullptr; });
}

// Closes the display, with everything of the frame that outlived its window.
void endSession()
{
    hover::cancel();
    periodicTimer::stop();
    frameFonts::release(session::ownDisplay());
    forgetDecoration();
    dispatcher::setStarted(false);
    forgetTopWindowOf(session::ownDisplay());
    session::close();
}

}  // namespace

bool isLoopRunning()
{
    return isRunning;
}

int loopsBeforeFrame()
{
    return isRunning ? 0 : -1;
}

}  // namespace kite

int guiStart(GuiHandler handler)
{
    if (!kite::session::isOpen() || kite::isRunning || kite::frame::isStarting()) return GUI_FAILED;
    // A box waits on this display, which the end of the main loop closes.
    if (kite::isProcessingEvents()) return GUI_FAILED;
    kite::isRunning = true;
    if (kite::mainWindow()) kite::runUntilClosed(handler);  // else it was closed before it ran
    kite::endSession();
    kite::isRunning = false;
    return 0;
}
