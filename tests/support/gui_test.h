// gui_test.h: the one header of a GUI test.
//
//     #include "gui_test.h"
//
//     using namespace kite::testing;
//     using ::testing::ElementsAre;
//
//     GUI_TEST(YesNoBox, CloseRequestAnswersNo)          // inside the running main loop
//     {
//         app.whenShown("v_askbox", [](Shown box) { box.closeByWindowManager(); });
//         EXPECT_EQ(guiYesNoBox("Delete the file?"), 0);
//     }
//
//     GUI_STARTUP_TEST(Frame, OpensAtItsSavedPlace)      // before guiInit: configure, then run
//     {
//         host.profile().setInt("mwndw", 500);
//         app.run([&] { EXPECT_EQ(resource<Dimension>(app.shell(), XmNwidth), 500); });
//     }
//
// Every test runs in a process of its own, on a display of its own: state of the library and the
// toolkit is always fresh. app, host, recorder, robot and script are at hand in its body. Inside a
// lambda capture by reference.

#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <kitegui.h>

#include "app.h"
#include "host_double.h"
#include "misuse.h"
#include "process.h"
#include "pump.h"
#include "recorder.h"
#include "robot.h"
#include "screen.h"
#include "script.h"
#include "shown.h"
#include "toolkit.h"
#include "toolkit_errors.h"
#include "widgets.h"
#include "window_manager.h"
#include "window_properties.h"

namespace kite::testing {

class GuiTest : public ::testing::Test {
protected:
    void TearDown() override { app.finish(); }

    App& app = App::instance();
    HostDouble& host = HostDouble::instance();
    Recorder& recorder = Recorder::instance();
    Robot& robot = Robot::instance();
    Script& script = Script::instance();
};

}  // namespace kite::testing

// The class of a test and its entry in the list of tests; the body follows.
#define KITE_GUI_TEST_(suite, name, run)                                                           \
    class suite##_##name##_Test : public ::kite::testing::GuiTest {                                \
        void TestBody() override { run; }                                                          \
        void body();                                                                               \
        [[maybe_unused]] static ::testing::TestInfo* const info;                                   \
    };                                                                                             \
    ::testing::TestInfo* const suite##_##name##_Test::info = ::testing::RegisterTest(              \
        #suite, #name, nullptr, nullptr, __FILE__, __LINE__,                                       \
        []() -> ::kite::testing::GuiTest* { return new suite##_##name##_Test; });                  \
    void suite##_##name##_Test::body()

#define GUI_TEST(suite, name) KITE_GUI_TEST_(suite, name, app.run([this] { body(); }))
#define GUI_STARTUP_TEST(suite, name) KITE_GUI_TEST_(suite, name, body())
