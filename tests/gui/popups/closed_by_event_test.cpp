// What an event closes while a menu waits in another event of the same window: Xt would destroy the window when the
// inner event is over, and go on with the outer one in its widgets.

#include "popups_support.h"

using namespace kite::testing;

namespace {

void clickOutput()
{
    Robot::instance().moveTo(App::instance().find("v_text"));
    Robot::instance().click(RightButton);
}

}  // namespace

GUI_STARTUP_TEST(ClosedByAnEvent, TheFrameMayGoWhileItsEditMenuWaits)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 0, [] { guiClose(0); });
    app.run([this] {
        app.whenShown("p_menu", [this](Shown) { wm::requestClose(app.shell()); });
        clickOutput();
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
}

// The question is an event loop of its own: the answer comes two events below the click.
GUI_STARTUP_TEST(ClosedByAnEvent, TheFrameMayGoAfterAQuestion)
{
    int answer = -1;
    recorder.onEvent(GUI_EVENT_COMMAND, 0, [&] {
        answer = guiYesNoBox("Leave?");
        guiClose(0);
    });
    app.run([this] {
        app.whenShown("p_menu", [this](Shown) { wm::requestClose(app.shell()); });
        app.whenShown("v_askbox", [](Shown box) { box.key(XK_Return); });
        clickOutput();
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
    EXPECT_EQ(answer, GUI_YES);
}

// All kinds of controls that tell of the click, and the texts with their menu.
GUI_TEST(ClosedByAnEvent, TheDialogMayGoWhileAMenuOfItsControlsWaits)
{
    recorder.onEvent(GUI_EVENT_CONTEXT, [] {
        buildPopup();
        guiShowPopMenu(0, 0, 0, 0);
    });
    recorder.onEvent(GUI_EVENT_COMMAND, 0, [] { guiClose(7); });
    const std::vector<std::function<void()>> controls{[] { guiButton(1, 0, 0, 60, "Button", 0); },
                                                      [] { guiEdit(1, 0, 0, 60, 0, 0); },
                                                      [] { guiText(1, 0, 3, 0, 60, 0); },
                                                      [] { guiList(1, 0, 3, 0, 60, 0); },
                                                      [] { guiTree(1, 0, 3, 0, 60); },
                                                      [] { guiCombo(1, 0, 0, 60); },
                                                      [] { guiSpin(1, 0, 0, 60); },
                                                      [] { guiSlider(1, 0, 2, 0, 60); }};
    for (const auto& control : controls) {
        SCOPED_TRACE(&control - controls.data());
        ASSERT_EQ(guiDialog("Closed"), 0);
        control();
        app.whenShown("v_dlgbbr", [&](Shown dialog) {
            app.whenShown("p_menu", [=](Shown) { wm::requestClose(dialog.widget()); });
            robot.click(controlOf(1), RightButton);
        });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 7);
        EXPECT_TRUE(isPopupGone());
    }
}
