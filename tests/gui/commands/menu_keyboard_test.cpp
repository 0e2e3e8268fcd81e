// Menus by keyboard: mnemonics, arrows, Escape, accelerators.

#include "commands_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

void buildMenus()
{
    guiMenu("&File");
    guiMenuItem("&Open", 'o', GUI_PLAIN, 10);
    guiMenuItem("Open &As", 'O', GUI_PLAIN, 11);
    guiMenuItem("Page &1", '1', GUI_PLAIN, 12);
    guiMenu("&Recent");
    guiMenuItem("&First", 'f', GUI_PLAIN, 13);
    guiMenuEnd();
    guiMenuEnd();
    guiMenu("&View");
    guiMenuItem("&Wrap", 'W', GUI_CHECK, 20);
    guiMenuItem("First of &two", 't', GUI_PLAIN, 21);
    guiMenuItem("Second of t&wo", 't', GUI_PLAIN, 22);
    guiMenuEnd();
}

void inMenus(const std::function<void()>& body)
{
    buildThenRun(buildMenus, [&] {
        Recorder::instance().clear();
        body();
    });
}

// Keys go to whatever Motif has grabbed them for.
void press(KeySym symbol, unsigned modifiers = NoModifier)
{
    Robot::instance().keyHandled(symbol, modifiers);
}

std::vector<Event> commands()
{
    return Recorder::instance().events(GUI_EVENT_COMMAND);
}

// The commands that come of one key.
std::vector<int> idsAfter(KeySym symbol, unsigned modifiers)
{
    Recorder::instance().clear();
    press(symbol, modifiers);
    settle();
    std::vector<int> ids;
    for (const Event& event : commands()) ids.push_back(event.id);
    return ids;
}

// Switched on for the scope.
class LockKey {
public:
    explicit LockKey(KeySym symbol) : symbol_(symbol) { Robot::instance().key(symbol_); }
    ~LockKey() { Robot::instance().key(symbol_); }
    LockKey(const LockKey&) = delete;
    LockKey& operator=(const LockKey&) = delete;

private:
    KeySym symbol_;
};

}  // namespace

GUI_STARTUP_TEST(MenuKeyboard, Mnemonics)
{
    inMenus([] {
        press(XK_f, Alt);
        ASSERT_TRUE(isOpen("Open"));
        press(XK_a);
        EXPECT_THAT(commands(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 11)));
        EXPECT_TRUE(isClosed("Open"));
        press(XK_f, Alt);
        ASSERT_TRUE(isOpen("Open"));
        press(XK_1);
        EXPECT_EQ(commands().back().id, 12);
        press(XK_v, Alt);
        ASSERT_TRUE(isOpen("Wrap"));
        press(XK_w);
        EXPECT_EQ(commands().back(), toWindow(GUI_EVENT_COMMAND, 20, 1));
    });
}

GUI_STARTUP_TEST(MenuKeyboard, MnemonicsOfSubmenus)
{
    inMenus([] {
        press(XK_f, Alt);
        ASSERT_TRUE(isOpen("Recent"));
        press(XK_r);
        ASSERT_TRUE(isOpen("First"));
        press(XK_f);
        EXPECT_THAT(commands(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 13)));
    });
}

GUI_STARTUP_TEST(MenuKeyboard, ArrowsAndReturn)
{
    inMenus([] {
        press(XK_f, Alt);
        ASSERT_TRUE(isOpen("Open"));
        press(XK_Down);
        press(XK_Return);
        EXPECT_THAT(commands(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 11)));
        press(XK_f, Alt);
        ASSERT_TRUE(isOpen("Open"));
        press(XK_Left);
        ASSERT_TRUE(isOpen("Wrap"));
        EXPECT_TRUE(isClosed("Open"));
        press(XK_Return);
        EXPECT_EQ(commands().back(), toWindow(GUI_EVENT_COMMAND, 20, 1));
    });
}

GUI_STARTUP_TEST(MenuKeyboard, EscapeChoosesNothing)
{
    inMenus([] {
        press(XK_f, Alt);
        ASSERT_TRUE(isOpen("Open"));
        press(XK_Escape);
        EXPECT_TRUE(isClosed("Open"));
        EXPECT_THAT(commands(), IsEmpty());
    });
}

// From the Output area, which has the keyboard.
GUI_STARTUP_TEST(MenuKeyboard, Accelerators)
{
    inMenus([&] {
        app.click("v_text");
        EXPECT_THAT(idsAfter(XK_o, Control), ElementsAre(10));
        EXPECT_THAT(idsAfter(XK_o, Control | Shift), ElementsAre(11));
        EXPECT_THAT(idsAfter(XK_1, Control), ElementsAre(12));
        EXPECT_THAT(idsAfter(XK_f, Control), ElementsAre(13));
        EXPECT_THAT(idsAfter(XK_w, Control | Shift), ElementsAre(20));
        EXPECT_EQ(commands().back().a, 1);
        EXPECT_THAT(idsAfter(XK_o, NoModifier), IsEmpty());
        EXPECT_EQ(textOf(app.find("v_text")), "o");
        EXPECT_THAT(idsAfter(XK_w, Control), IsEmpty());
        // Of two equal ones the first counts.
        EXPECT_THAT(idsAfter(XK_t, Control), ElementsAre(21));
    });
}

GUI_STARTUP_TEST(MenuKeyboard, AcceleratorsWorkWithLockKeys)
{
    inMenus([&] {
        app.click("v_text");
        for (const KeySym lock : {XK_Num_Lock, XK_Caps_Lock}) {
            SCOPED_TRACE(lock);
            const LockKey locked{lock};
            EXPECT_THAT(idsAfter(XK_o, Control), ElementsAre(10));
            EXPECT_THAT(idsAfter(XK_o, Control | Shift), ElementsAre(11));
            EXPECT_THAT(idsAfter(XK_1, Control), ElementsAre(12));
            press(XK_f, Alt);
            EXPECT_TRUE(isOpen("Open"));
            EXPECT_THAT(idsAfter(XK_a, NoModifier), ElementsAre(11));
        }
    });
}

GUI_STARTUP_TEST(MenuKeyboard, GreyedItemsHaveNoAccelerators)
{
    inMenus([&] {
        app.click("v_text");
        guiEnableCommand(10, 0);
        EXPECT_THAT(idsAfter(XK_o, Control), IsEmpty());
        EXPECT_EQ(textOf(app.find("v_text")), "");
        guiEnableCommand(10, 1);
        EXPECT_THAT(idsAfter(XK_o, Control), ElementsAre(10));
        // The second of two equal ones takes the place of the first.
        guiEnableCommand(21, 0);
        EXPECT_THAT(idsAfter(XK_t, Control), ElementsAre(22));
    });
}

// Menus that were there before a restart are still the user's.
GUI_STARTUP_TEST(MenuKeyboard, MenusThatStayKeepTheirKeys)
{
    inMenus([&] {
        guiMenu("&New");
        guiMenuItem("&Other", 'o', GUI_PLAIN, 100);
        guiMenuItem("&Own", 'n', GUI_PLAIN, 101);
        guiMenuEnd();
        app.click("v_text");
        EXPECT_THAT(idsAfter(XK_f, Control), ElementsAre(13));
        EXPECT_THAT(idsAfter(XK_n, Control), ElementsAre(101));
        EXPECT_THAT(idsAfter(XK_o, Control), ElementsAre(10));
        press(XK_n, Alt);
        ASSERT_TRUE(isOpen("Other"));
        press(XK_o);
        EXPECT_EQ(commands().back().id, 100);
    });
}
