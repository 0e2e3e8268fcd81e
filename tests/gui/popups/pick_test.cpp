// The user picks an item or dismisses the menu.

#include <tuple>

#include "popups_support.h"
#include "server_resources.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

const Point kOnTheRoot{1270, 1010};

// "One", a separator, "Two" and "Three"; away from the edges of the screen.
int runSeparated(const std::function<void(Shown)>& use)
{
    Robot::instance().moveTo(Point{300, 300});
    buildPopup({"&One", kSeparator, "&Two", "Th&ree"});
    App::instance().whenShown("p_menu", use);
    return guiShowPopMenu(0, 0, 0, 0);
}

int afterKeys(const std::vector<KeySym>& keys)
{
    return runSeparated([&](Shown) {
        for (const KeySym key : keys) Robot::instance().keyHandled(key);
    });
}

}  // namespace

GUI_TEST(PopupPick, ByEitherMouseButtonIsTheNumberOfTheItem)
{
    recorder.clear();
    for (const unsigned button : {LeftButton, RightButton}) {
        SCOPED_TRACE(button);
        EXPECT_EQ(runSeparated(picking("One", button)), 1);
        EXPECT_EQ(runSeparated(picking("Two", button)), 2);
        EXPECT_EQ(runSeparated(picking("Three", button)), 3);
        EXPECT_TRUE(isPopupGone());
    }
    EXPECT_THAT(recorder.events(), IsEmpty()) << "items are no commands";

    // The item of the release.
    for (const unsigned button : {LeftButton, RightButton})
        EXPECT_EQ(runSeparated([&](Shown menu) {
                      const auto place = [&](const char* label) {
                          return rectOf(findByLabel(label, menu.widget())).centre();
                      };
                      robot.drag(place("One"), place("Three"), button);
                      EXPECT_TRUE(pumpUntil([&] { return !isShown(menu.widget()); }));
                  }),
                  3)
            << button;
}

GUI_TEST(PopupPick, ByKeyboard)
{
    recorder.clear();
    EXPECT_EQ(afterKeys({XK_Return}), 1) << "the first has the keyboard";
    EXPECT_EQ(afterKeys({XK_Down, XK_Return}), 2) << "separators are passed over";
    EXPECT_EQ(afterKeys({XK_Down, XK_Down, XK_Return}), 3);
    EXPECT_EQ(afterKeys({XK_Up, XK_Return}), 3);
    EXPECT_EQ(afterKeys({XK_Down, XK_Up, XK_space}), 1);
    EXPECT_EQ(afterKeys({XK_o}), 1) << "a mnemonic";
    EXPECT_EQ(afterKeys({XK_t}), 2);
    EXPECT_EQ(afterKeys({XK_r}), 3);
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(PopupPick, IsNothingWhenTheMenuIsDismissed)
{
    recorder.clear();
    EXPECT_EQ(afterKeys({XK_Escape}), 0);
    EXPECT_EQ(afterKeys({XK_Down, XK_Escape}), 0);
    EXPECT_TRUE(isPopupGone());
    EXPECT_EQ(runSeparated([this](Shown menu) {
                  robot.moveTo(rectOf(app.find("v_text")).corner() + Point{400, 300});
                  robot.click();
                  EXPECT_TRUE(pumpUntil([&] { return !isShown(menu.widget()); }));
              }),
              0)
        << "on the frame";
    ASSERT_EQ(guiCreatePopMenu(), 1);
    app.when(
        "the empty menu is there", [] { return popup() && XtIsManaged(popup()); },
        [this] { robot.keyHandled(XK_Escape); });
    EXPECT_EQ(guiShowPopMenu(0, 0, 0, 0), 0);
    EXPECT_FALSE(rectOf(app.shell()).contains(kOnTheRoot));
    for (const unsigned button : {LeftButton, RightButton})
        EXPECT_EQ(runSeparated([&](Shown menu) {
                      robot.moveTo(kOnTheRoot);
                      robot.click(button);
                      EXPECT_TRUE(pumpUntil([&] { return !isShown(menu.widget()); }));
                  }),
                  0)
            << "on the root, button " << button;
    EXPECT_TRUE(isPopupGone());
    EXPECT_THAT(recorder.events(), IsEmpty());
}

// Mouse and keyboard are the frame's again.
GUI_TEST(PopupPick, LeavesMouseAndKeyboardToTheFrameAndToDialogs)
{
    for (const auto& end : {picking("Two"), std::function<void(Shown)>{dismiss}}) {
        guiClearOutput();
        runSeparated(end);
        app.click("v_text");
        app.type("typed");
        EXPECT_EQ(textOf(app.find("v_text")), "typed");
    }

    runDialog([] { guiEdit(1, 0, 0, 60, 0, 0); },
              [](Shown dialog) {
                  EXPECT_EQ(runSeparated(picking("Three")), 3);
                  EXPECT_EQ(afterKeys({XK_Down, XK_Return}), 2);
                  EXPECT_EQ(runSeparated(dismiss), 0);
                  dialog.type("typed");
                  EXPECT_EQ(textOf(controlOf(1)), "typed");
              });
}

GUI_TEST(PopupPick, IsOfTheMenuThatIsShown)
{
    for (int i = 1; i <= 20; ++i) {
        ASSERT_EQ(guiCreatePopMenu(), 1);
        for (int item = 1; item <= i; ++item)
            guiAppendPopMenu(("Item " + std::to_string(item)).c_str());
        app.whenShown("p_menu", picking("Item " + std::to_string(i)));
        EXPECT_EQ(guiShowPopMenu(3, 3, 0, 0), i);
    }
}

// Neither by menus that were shown nor by those that were forgotten.
GUI_TEST(PopupPick, NothingIsLeftBehind)
{
    const auto useThem = [] {
        buildPopup();
        EXPECT_EQ(runPopup(picking("Two"), {3, 3, 0, 0}), 2);
        buildPopup();
        EXPECT_EQ(runPopup(dismiss, {3, 3, 0, 0}), 0);
        EXPECT_TRUE(isPopupGone());
        settle();
    };
    for (int i = 0; i < 3; ++i) useThem();
    const auto before = serverResources(toolkit::display());
    EXPECT_GT(before.at("WINDOW"), 0U);
    for (int i = 0; i < 10; ++i) useThem();
    EXPECT_EQ(serverResources(toolkit::display()), before);
}
