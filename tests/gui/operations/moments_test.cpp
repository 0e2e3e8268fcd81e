// When controls can be operated: as long as their dialog is the top window.

#include "dialog_plan.h"
#include "operation_table.h"

using namespace kite::testing;

GUI_TEST(Moments, InTheFirstEventTheControlsCanBeFilled)
{
    runDialog({.build =
                   [] {
                       guiEdit(1, 0, 0, 60, 0, 0);
                       guiCheck(2, 1, 0, 60, "Check");
                   },
               .fill =
                   [] {
                       EXPECT_FALSE(XtIsRealized(board()) && isShown(board()));
                       guiSetText(1, "early");
                       guiSetCheck(2, 1);
                       makeSlider(3);
                       guiSetRange(3, 11, 21);
                       guiSetPos(3, 15);
                       EXPECT_EQ(guiGetTextLen(1), 5);
                   },
               .look =
                   [](Shown) {
                       EXPECT_EQ(textOf(outerOf(1)), "early");
                       EXPECT_EQ(guiGetCheck(2), 1);
                       EXPECT_EQ(guiGetPos(3), 15);
                   }});
}

GUI_TEST(Moments, OutsideOfHandlersToo)
{
    runDialog({.build = [] { guiEdit(1, 0, 0, 60, 0, 0); },
               .look =
                   [](Shown dialog) {
                       guiSetText(1, "from a timer");
                       EXPECT_EQ(textOf(dialog.child("v_dlgedit")), "from a timer");
                   }});
}

// The box is the top window as long as it is shown, and has no controls.
GUI_TEST(Moments, ABoxHidesTheDialogsControls)
{
    runDialog({.build = buildSimpleKinds, .look = [&](Shown) {
                   makeOtherKinds();
                   app.whenShown("v_infobox", [&](Shown box) {
                       for (const Operation& operation : controlOperations()) {
                           SCOPED_TRACE(operation.function);
                           const int id = *operation.kinds.begin();
                           const std::string message = operation.name + ": no control with id " +
                                                       std::to_string(id) + " in the dialog";
                           const auto messages = errorsDuring(
                               [&] { EXPECT_EQ(operation.call(id), operation.failure); });
                           EXPECT_EQ(messages.size(), operation.isQuiet ? 0U : 1U);
                           for (const std::string& shown : messages) EXPECT_EQ(shown, message);
                       }
                       box.key(XK_Return);
                   });
                   guiInfoBox("Wait");
                   EXPECT_EQ(guiIdStatus(Edit), 1);
                   guiSetText(Edit, "again");
                   EXPECT_EQ(textOf(innerOf(Edit)), "again");
               }});
}

GUI_TEST(Moments, AnEventOfTheTimerWhileABoxIsOpen)
{
    int ticks = 0;
    bool wasRefused = false;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        if (ticks++ == 0) wasRefused = guiIdStatus(1) == -1;
    });
    runDialog({.build = [] { guiEdit(1, 0, 0, 60, 0, 0); },
               .look =
                   [&](Shown) {
                       app.whenShown("v_infobox", [&](Shown box) {
                           guiTimer(100);
                           EXPECT_TRUE(pumpUntil([&] { return ticks > 0; }));
                           guiTimer(0);
                           box.key(XK_Return);
                       });
                       guiInfoBox("Wait");
                       EXPECT_TRUE(wasRefused);
                       EXPECT_EQ(guiIdStatus(1), 1);
                   }});
}

GUI_TEST(Moments, BehindTheDialogItsControlsAreGone)
{
    runDialog({.build = [] { guiEdit(1, 0, 0, 60, 0, 0); }});
    EXPECT_MISUSE(guiSetText(1, "late"), "SetText: no dialog");
}
