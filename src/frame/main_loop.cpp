// main_loop.cpp: the loop that runs the frame until it is closed.

#include <Xm/Xm.h>
#include <kitegui.h>

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
    dispatcher::setStarted(true);
    Widget const anyWidget = mainWindow();
    frame::show();
    if (mainWindow()) processEventsWhile(anyWidget, [] { return mainWindow() != nullptr; });
}

void endSession()
{
    hover::cancel();
    periodicTimer::stop();
    frameFonts::release();
    dispatcher::setStarted(false);
    session::close();
}

}  // namespace

}  // namespace kite

int guiStart(GuiHandler handler)
{
    if (!kite::mainWindow() || kite::isRunning) return GUI_FAILED;
    kite::isRunning = true;
    kite::runUntilClosed(handler);
    kite::endSession();
    kite::isRunning = false;
    return 0;
}
