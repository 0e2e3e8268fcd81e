// app.h: the library under test as a host runs it, from guiInit to the end of guiStart.
//
//     host.profile().setInt("mwndw", 500);     // before the start
//     app.run([&] {                            // guiInit, guiStart, and this inside the main loop
//         app.click("v_gauge");
//         EXPECT_EQ(guiYesNoBox("?"), 1);
//     });                                      // guiClose(0), and guiStart has returned
//
// Inside GUI_TEST the run has begun already.

#pragma once

#include <kitegui.h>

#include <functional>
#include <string>

#include "host_double.h"
#include "recorder.h"
#include "robot.h"
#include "script.h"

namespace kite::testing {

class App {
public:
    static App& instance();

    // The handlers that init and run hand over. Null is a host without one.
    GuiHandler hostCallback = Recorder::hostCallback();
    GuiHandler windowHandler = Recorder::windowHandler();

    // Keep the warning handler that guiSetAppInfo installs; else the harness's takes its place.
    bool leavesWarningsToLibrary = false;

    Profile& profile() { return HostDouble::instance().profile(); }

    // guiInit, and waits until the frame is on the screen. run does it when it was not done.
    void init();

    // guiStart: runs the body inside the main loop, once the frame can be seen and has the keyboard,
    // then closes the frame. Returns what guiStart returned.
    int run(const std::function<void()>& body);

    // See Script.
    void whenShown(const std::string& name, const std::function<void(Shown)>& action);
    void when(const std::string& description, Condition condition, Action action);

    // A widget by name; a failure when there is none. Its click waits until all is handled.
    Widget find(const std::string& name);
    void click(const std::string& name);
    void key(KeySym symbol, unsigned modifiers = NoModifier);
    void type(std::string_view utf8);

    // False when the event did not come: assert it.
    bool waitForEvent(const Event& event);

    // The frame's shell; null before init and when it is closed.
    Widget shell();

    // Ends what a test has left open, and checks that the script was played.
    void finish();

private:
    App() = default;
    bool isReady();
    void closeAll();
};

}  // namespace kite::testing
