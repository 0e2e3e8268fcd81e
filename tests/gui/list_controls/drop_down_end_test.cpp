// The dialog is closed while a list has dropped down: nothing of it stays, and the mouse is free again.

#include <Xm/DisplayP.h>

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

constexpr int kBox = 5;
constexpr int kButton = 6;
constexpr int kEdit = 7;

// Windows of the display that can be seen.
int windowsOnScreen()
{
    Display* const display = XtDisplay(App::instance().shell());
    Window root = 0, parent = 0, *windows = nullptr;
    unsigned count = 0;
    XGrabServer(display);  // windows of the manager's go at any time
    XQueryTree(display, DefaultRootWindow(display), &root, &parent, &windows, &count);
    int visible = 0;
    for (unsigned i = 0; i < count; ++i) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(display, windows[i], &attributes) &&
            attributes.map_state == IsViewable && attributes.c_class == InputOutput)
            ++visible;
    }
    XUngrabServer(display);
    XSync(display, False);
    XFree(windows);
    return visible;
}

// None but the frame is noted by the toolkit: it would look at them whenever another window comes or goes.
bool isNothingModal()
{
    auto* const display = reinterpret_cast<XmDisplay>(XmGetXmDisplay(toolkit::display()));
    const auto* const modals = display->display.modals;
    return std::all_of(modals, modals + display->display.numModals,
                       [](const auto& modal) { return modal.wid == App::instance().shell(); });
}

void expectMouseIsFree()
{
    runDialog({.build = [] { guiButton(kButton, 0, 0, 40, "OK", 0); },
               .use =
                   [](Shown) {
                       EXPECT_THAT(
                           eventsDuring([] { Robot::instance().click(controlOf(kButton)); }),
                           ElementsAre(toDialog(GUI_EVENT_COMMAND, kButton)));
                   }});
}

// `before` windows are on the screen without a dialog.
void closeWhileOpen(int before, const std::function<void(int)>& make,
                    const std::function<void()>& close)
{
    ASSERT_EQ(guiDialog(""), 0);
    make(kBox);
    guiLabel(-1, 9, 0, 80, "Room for the list");
    Recorder::instance().onEvent(GUI_EVENT_INIT, [] {
        if (guiIdStatus(kBox) >= 0) appendItems(kBox, 20);
    });
    App::instance().whenShown("v_dlgbbr", [&](Shown) {
        clickArrow(kBox);
        EXPECT_TRUE(waitUntilOpen(kBox));
        close();
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 3);
    EXPECT_FALSE(newestBoard());
    EXPECT_TRUE(isNothingModal());
    EXPECT_TRUE(pumpUntil([&] { return windowsOnScreen() == before; }));
    expectMouseIsFree();
}

// The windows are counted once: a dialog that was closed may still be on the screen for a while.
void forBothKinds(const std::function<void()>& close)
{
    const int before = windowsOnScreen();
    {
        SCOPED_TRACE("choice");
        closeWhileOpen(
            before, [](int id) { guiChoice(id, 0, 0, 80); }, close);
    }
    {
        SCOPED_TRACE("combo box");
        closeWhileOpen(
            before, [](int id) { guiCombo(id, 0, 0, 80); }, close);
    }
}

}  // namespace

GUI_TEST(DropDownEnd, ByTheHost)
{
    forBothKinds([] { guiClose(3); });
}

GUI_TEST(DropDownEnd, ByTheTimer)
{
    recorder.onEvent(GUI_EVENT_TIMER, [] { guiClose(3); });
    forBothKinds([] { guiTimer(100); });
}

GUI_TEST(DropDownEnd, ByThePick)
{
    recorder.onEvent(GUI_EVENT_VALUE, kBox, [] { guiClose(3); });
    forBothKinds([this] {
        Widget const list = listOf(kBox);
        robot.moveTo(list, middleOfItem(list, 2));
        robot.click();
    });
}

// The press on the arrow takes the keyboard from the edit, and the list drops down after that.
GUI_TEST(DropDownEnd, BeforeItHasDroppedDown)
{
    recorder.onEvent(GUI_EVENT_LEFT, kEdit, [] { guiClose(3); });
    for (const auto make : {guiChoice, guiCombo}) {
        const int before = windowsOnScreen();
        for (int i = 0; i < 3; ++i) {
            ASSERT_EQ(guiDialog(""), 0);
            guiEdit(kEdit, 0, 0, 80, 0, 0);
            make(kBox, 1, 0, 80);
            guiLabel(-1, 9, 0, 80, "Room for the list");
            app.whenShown("v_dlgbbr", [](Shown) { clickArrow(kBox); });
            EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 3);
            EXPECT_TRUE(isNothingModal());
        }
        EXPECT_TRUE(pumpUntil([&] { return windowsOnScreen() == before; }));
    }
    recorder.forgetReactions();
    expectMouseIsFree();
}

// An arrow that is held goes as well.
GUI_TEST(DropDownEnd, OfAHiddenOrDisabledControl)
{
    runDialog({.build =
                   [] {
                       guiChoice(kBox, 0, 0, 80);
                       guiLabel(-1, 9, 0, 80, "Room for the list");
                   },
               .fill = [] { appendItems(kBox, 20); },
               .use =
                   [](Shown) {
                       clickArrow(kBox);
                       ASSERT_TRUE(waitUntilOpen(kBox));
                       guiSetVisible(kBox, 0);
                   }});
    expectMouseIsFree();
}
