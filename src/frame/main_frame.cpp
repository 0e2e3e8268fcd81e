#include "frame/main_frame.h"

#include <Xm/MainW.h>
#include <Xm/Text.h>
#include <kitegui.h>

#include <cstdio>
#include <cstdlib>

#include "frame/app_info.h"
#include "frame/closing.h"
#include "frame/decoration.h"
#include "frame/dispatcher.h"
#include "frame/frame_fonts.h"
#include "frame/frame_pictures.h"
#include "frame/frame_widgets.h"
#include "frame/hover.h"
#include "frame/log_file.h"
#include "frame/main_loop.h"
#include "frame/saved_geometry.h"
#include "frame/session.h"
#include "frame/top_window.h"
#include "images/image_loader.h"
#include "toolkit/resources.h"
#include "toolkit/shells.h"

namespace kite::frame {

namespace {

int readDropDownHeight = 0;  // set by guiInit
bool isInStart = false;      // while guiInit builds the frame

void (*commandsGone)() = nullptr;  // from whenCommandsGo

Widgets frame;  // made by guiInit, each forgotten when it is destroyed

[[noreturn]] void failAtStart(const char* message)
{
    std::puts(message);
    std::exit(EXIT_FAILURE);
}

// Kept for hosts' profiles that set "spsec"; nothing hangs on it.
void runStartupHook() {}

void startLog()
{
    const int mode = settings::logMode();
    if (mode > 0) outputLog().start(settings::logFileName().c_str(), mode == 1);
}

savedGeometry::Size screenSize()
{
    Screen* const screen = XDefaultScreenOfDisplay(session::display());
    return {WidthOfScreen(screen), HeightOfScreen(screen)};
}

void closeRequested(Widget, XtPointer, XtPointer)
{
    answerCloseRequest(mainWindow());
}

constexpr Widget Widgets::*kParts[] = {&Widgets::shell,     &Widgets::mainWindow, &Widgets::menuBar,
                                       &Widgets::toolbar,   &Widgets::scroller,   &Widgets::text,
                                       &Widgets::statusBar, &Widgets::statusLine, &Widgets::gauge};

Pixel menuBarBackground()
{
    return resource<Pixel>(frame.menuBar, XmNbackground);
}

// Xt may come to it late, when the host has built the next frame.
void partDestroyed(Widget widget, XtPointer, XtPointer)
{
    if (widget == frame.menuBar) images::setTransparentGrey(nullptr);
    for (Widget Widgets::*const part : kParts)
        if (frame.*part == widget) frame.*part = nullptr;
}

void forgetWhenDestroyed(Widget widget)
{
    XtAddCallback(widget, XmNdestroyCallback, partDestroyed, nullptr);
}

// A host without any handler can still be closed.
void closeUnhandled()
{
    guiRestart();
    guiClose(0);
}

void build()
{
    const Pixmap icon = loadIcon(XDefaultScreenOfDisplay(session::display()));
    const auto saved = settings::savedGeometry();
    const auto geometry = savedGeometry::toOpenWith(saved, screenSize());
    frame.shell = createShell(geometry, geometry == saved, icon);
    if (!frame.shell) failAtStart("Cannot create the application shell");
    frame.mainWindow = createMainWindow(frame.shell);
    if (!frame.mainWindow) failAtStart("Cannot create the main window");
    onCloseRequest(frame.shell, closeRequested, nullptr);
    watchDecoration(frame.shell);

    frameFonts::load(session::display());
    readDropDownHeight = settings::dropDownHeight();
    createContents(frame);
    for (Widget Widgets::*const part : kParts) forgetWhenDestroyed(frame.*part);
    images::setTransparentGrey(menuBarBackground);
    hover::setDelay(settings::hoverDelay());
    loadTreeImages(frame.shell);
    // From here on there is a frame: the host's services, which were asked until now, have not seen it.
    setMainWindow(frame.mainWindow);
    setTopWindow(frame.mainWindow);
    XtManageChild(frame.mainWindow);
    XtRealizeWidget(frame.shell);
}

}  // namespace

const Widgets& widgets()
{
    static const Widgets none;
    return mainWindow() ? frame : none;
}

int dropDownHeight()
{
    return readDropDownHeight;
}

void whenCommandsGo(void (*action)())
{
    commandsGone = action;
}

void dropCommands()
{
    if (commandsGone) commandsGone();
}

void recreateToolbar()
{
    if (frame.toolbar) dropToolbar();
    frame.toolbar = createToolbar(frame.mainWindow);
    forgetWhenDestroyed(frame.toolbar);
}

// Out of the layout at once: inside a callback Xt destroys it later.
void dropToolbar()
{
    XtUnmanageChild(frame.toolbar);
    takeAway(frame.toolbar, loopsBeforeFrame());
    frame.toolbar = nullptr;
}

void start(GuiHandler callback)
{
    isInStart = true;
    dispatcher::setHostCallback(callback);
    dispatcher::setFrameActions({show, closeUnhandled});
    dispatcher::setStarted(false);
    dropCommands();
    // The session of a frame that a host with an event loop of its own has closed goes on: that loop
    // may be running right now.
    if (!session::isOpen() && !session::open(appTitle(), kApplicationClass))
        failAtStart("Cannot open display");
    if (settings::startupHook() > 0) runStartupHook();
    startLog();
    build();
    isInStart = false;
}

bool isStarting()
{
    return isInStart;
}

}  // namespace kite::frame

void guiInit(GuiHandler callback)
{
    if (kite::mainWindow() || kite::isLoopRunning() || kite::frame::isStarting()) return;
    kite::frame::start(callback);
}
