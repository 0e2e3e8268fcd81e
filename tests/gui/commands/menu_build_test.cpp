// The menu bar as it is built: widgets, labels, levels, counts.

#include <Xm/CascadeBG.h>
#include <Xm/PushBG.h>
#include <Xm/RowColumn.h>
#include <Xm/SeparatoG.h>
#include <Xm/ToggleBG.h>

#include "commands_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

constexpr int kDeepest = 255;
constexpr int kMostItems = 512;
constexpr int kMostAccelerators = 256;

KeySym mnemonicOf(Widget widget)
{
    return resource<KeySym>(widget, XmNmnemonic);
}

std::string acceleratorOf(Widget item)
{
    char* text = nullptr;
    XtVaGetValues(item, XmNaccelerator, &text, nullptr);
    const std::string result = text ? text : "";
    XtFree(text);
    return result;
}

std::string acceleratorTextOf(Widget item)
{
    XmString text = nullptr;
    XtVaGetValues(item, XmNacceleratorText, &text, nullptr);
    const std::string result = text ? toString(text) : "";
    XmStringFree(text);
    return result;
}

void addItems(int count, char accel)
{
    for (int id = 0; id < count; ++id) ASSERT_EQ(guiMenuItem("Item", accel, 0, id), id + 1);
}

}  // namespace

GUI_STARTUP_TEST(MenuBuild, ResultsAreLevelsAndCounts)
{
    app.init();
    EXPECT_EQ(guiMenu("&File"), 1);
    EXPECT_EQ(guiMenuItem("&Open", 'o', GUI_PLAIN, 10), 1);
    EXPECT_EQ(guiMenu("&Recent"), 2);
    EXPECT_EQ(guiMenuItem("One", 0, GUI_PLAIN, 11), 2);
    EXPECT_EQ(guiMenuEnd(), 1);
    EXPECT_EQ(guiMenuSeparator(), 0);
    EXPECT_EQ(guiMenuItem("&Quit", ' ', GUI_PLAIN, 0), 3);
    EXPECT_EQ(guiMenuEnd(), 0);
    EXPECT_EQ(guiMenu("&Edit"), 1);
    EXPECT_EQ(guiMenuItem("&Wrap", 0, GUI_CHECK, 12), 4);
    EXPECT_EQ(guiMenuEnd(), 0);
}

GUI_STARTUP_TEST(MenuBuild, WidgetsHaveTheirNamesAndClasses)
{
    app.init();
    guiMenu("&File");
    guiMenuItem("&Open", 'o', GUI_PLAIN, 10);
    guiMenuSeparator();
    guiMenuItem("&Wrap", 'W', GUI_CHECK, 11);
    guiMenu("&More");

    Widget const menuBar = app.find("v_menubar");
    Widget const title = entry("File");
    EXPECT_STREQ(XtName(title), "v_mbtn");
    EXPECT_EQ(XtClass(title), xmCascadeButtonGadgetClass);
    EXPECT_EQ(XtParent(title), menuBar);
    EXPECT_EQ(mnemonicOf(title), static_cast<KeySym>(XK_F));
    Widget const pulldown = resource<Widget>(title, XmNsubMenuId);
    EXPECT_STREQ(XtName(pulldown), "v_menu");
    EXPECT_EQ(resource<unsigned char>(pulldown, XmNrowColumnType), XmMENU_PULLDOWN);

    Widget const open = entry("Open");
    EXPECT_STREQ(XtName(open), "v_mitem");
    EXPECT_EQ(XtClass(open), xmPushButtonGadgetClass);
    EXPECT_EQ(XtParent(open), pulldown);
    EXPECT_EQ(mnemonicOf(open), static_cast<KeySym>(XK_O));
    EXPECT_EQ(acceleratorOf(open), "Ctrl<Key>O");
    EXPECT_EQ(acceleratorTextOf(open), "Ctrl+O");

    Widget const wrap = entry("Wrap");
    EXPECT_STREQ(XtName(wrap), "v_mitem");
    EXPECT_EQ(XtClass(wrap), xmToggleButtonGadgetClass);
    EXPECT_EQ(acceleratorOf(wrap), "Ctrl Shift<Key>W");
    EXPECT_EQ(acceleratorTextOf(wrap), "Ctrl+Shift+W");
    EXPECT_FALSE(XmToggleButtonGadgetGetState(wrap));

    EXPECT_EQ(XtClass(app.find("v_msep")), xmSeparatorGadgetClass);
    EXPECT_EQ(XtParent(app.find("v_msep")), pulldown);
    EXPECT_EQ(XtParent(entry("More")), pulldown);
    EXPECT_STREQ(XtName(entry("More")), "v_mbtn");
}

GUI_STARTUP_TEST(MenuBuild, NamesAreLabelsWithMnemonics)
{
    app.init();
    guiMenu("Menu");
    guiMenuItem("Save && Exit", 0, GUI_PLAIN, 1);
    guiMenuItem("Page &2", '2', GUI_PLAIN, 2);
    guiMenuItem("plain", ' ', GUI_PLAIN, 3);
    EXPECT_EQ(mnemonicOf(entry("Menu")), static_cast<KeySym>(XK_VoidSymbol));
    EXPECT_EQ(mnemonicOf(entry("Save  Exit")), static_cast<KeySym>(XK_VoidSymbol));
    EXPECT_EQ(mnemonicOf(entry("Page 2")), static_cast<KeySym>(XK_2));
    EXPECT_EQ(acceleratorOf(entry("Page 2")), "Ctrl<Key>2");
    EXPECT_EQ(acceleratorTextOf(entry("Page 2")), "Ctrl+2");
    EXPECT_EQ(acceleratorOf(entry("plain")), "");
    EXPECT_EQ(acceleratorTextOf(entry("plain")), "");
}

GUI_STARTUP_TEST(MenuBuild, NamesOfAllLengths)
{
    app.init();
    EXPECT_EQ(guiMenu(""), 1);
    EXPECT_EQ(guiMenuEnd(), 0);
    EXPECT_EQ(guiMenu(std::string(63, 'm').c_str()), 1);
    EXPECT_EQ(guiMenuItem(std::string(63, 'i').c_str(), 0, GUI_PLAIN, 1), 1);
    EXPECT_EQ(guiMenuItem(std::string(63, '&').c_str(), 0, GUI_PLAIN, 2), 2);
    EXPECT_EQ(labelOf(entry(std::string(63, 'i'))), std::string(63, 'i'));
    EXPECT_MISUSE(guiMenu(std::string(64, 'm').c_str()), "Menu: invalid name", -1);
    EXPECT_MISUSE(guiMenu(nullptr), "Menu: invalid name", -1);
    EXPECT_MISUSE(guiMenuItem(std::string(64, 'i').c_str(), 0, 0, 3), "MenuItem: invalid name", -1);
    EXPECT_MISUSE(guiMenuItem("", 0, 0, 3), "MenuItem: invalid name", -1);
    EXPECT_MISUSE(guiMenuItem(nullptr, 0, 0, 3), "MenuItem: invalid name", -1);
    EXPECT_EQ(guiMenuItem("next", 0, GUI_PLAIN, 3), 3);
}

GUI_STARTUP_TEST(MenuBuild, ItemsHaveTheMenuBarsFont)
{
    host.profile().setString("fnamn", "8x13");
    app.init();
    guiMenu("File");
    guiMenuItem("Item", 0, GUI_PLAIN, 1);
    guiMenuItem("Check", 0, GUI_CHECK, 2);
    XFontStruct* const wanted = XLoadQueryFont(toolkit::display(), "8x13");
    for (const char* label : {"File", "Item", "Check"}) {
        XmFontContext context = nullptr;
        XmStringCharSet charset = nullptr;
        XFontStruct* font = nullptr;
        XmFontListInitFontContext(&context, resource<XmFontList>(entry(label), XmNfontList));
        XmFontListGetNextFont(context, &charset, &font);
        XtFree(charset);
        XmFontListFreeFontContext(context);
        EXPECT_EQ(font->max_bounds.width, wanted->max_bounds.width) << label;
        EXPECT_EQ(font->ascent, wanted->ascent) << label;
    }
    XFreeFont(toolkit::display(), wanted);
}

GUI_STARTUP_TEST(MenuBuild, LevelsHaveALimit)
{
    app.init();
    for (int level = 1; level <= kDeepest; ++level) ASSERT_EQ(guiMenu("deeper"), level);
    EXPECT_MISUSE(guiMenu("one too many"), "Menu: too many levels of menu", -1);
    EXPECT_MISUSE(guiMenu(std::string(64, 'm').c_str()), "Menu: too many levels of menu", -1);
    EXPECT_EQ(findWidgets("v_menu").size(), static_cast<std::size_t>(kDeepest));
    EXPECT_EQ(guiMenuItem("deepest", 0, GUI_PLAIN, 1), 1);
    EXPECT_EQ(guiMenuEnd(), kDeepest - 1);
    EXPECT_EQ(guiMenu("again"), kDeepest);
}

GUI_STARTUP_TEST(MenuBuild, ItemsHaveALimit)
{
    app.init();
    guiMenu("Menu");
    addItems(kMostItems, 0);
    EXPECT_MISUSE(guiMenuItem("Item", 0, 0, kMostItems), "MenuItem: too many menu items", -1);
    EXPECT_MISUSE(guiMenuItem("Item", '!', 0, kMostItems),
                  "MenuItem: invalid accelerator for id 512", -1);
    EXPECT_EQ(findWidgets("v_mitem").size(), static_cast<std::size_t>(kMostItems));
    guiRestart();
    guiMenu("Menu");
    EXPECT_EQ(guiMenuItem("Item", 0, 0, 5), 1);
}

GUI_STARTUP_TEST(MenuBuild, AcceleratorsHaveALimit)
{
    app.init();
    guiMenu("Menu");
    addItems(kMostAccelerators, 'a');
    EXPECT_EQ(guiMenuItem("none", 0, 0, 1000), kMostAccelerators + 1);
    EXPECT_MISUSE(guiMenuItem("late", 'b', 0, 1001), "MenuItem: too many accelerators - ignored",
                  kMostAccelerators + 2);
    EXPECT_EQ(acceleratorOf(entry("late")), "");
    EXPECT_EQ(acceleratorTextOf(entry("late")), "");
    guiRestart();
    guiMenu("Menu");
    EXPECT_EQ(guiMenuItem("fresh", 'c', 0, 1), 1);
    EXPECT_EQ(acceleratorOf(entry("fresh")), "Ctrl<Key>C");
}

GUI_STARTUP_TEST(MenuBuild, NothingWithoutAFrame)
{
    EXPECT_EQ(guiMenu("File"), -1);
    EXPECT_EQ(guiMenuItem("Item", 0, 0, 1), -1);
    EXPECT_EQ(guiMenuSeparator(), -1);
    EXPECT_EQ(guiMenuEnd(), -1);
    EXPECT_EQ(guiToolbarButton("save", nullptr, 0, 1), 0);
    EXPECT_EQ(guiToolbarSeparator(), 0);
}

GUI_STARTUP_TEST(MenuBuild, NothingAfterTheFrame)
{
    buildThenRun(
        [] {
            addImage("save");
            guiToolbarButton("save", nullptr, 0, 1);
        },
        [] {});
    EXPECT_EQ(guiMenu("File"), -1);
    EXPECT_EQ(guiToolbarButton("save", nullptr, 0, 2), 0);
    EXPECT_EQ(guiToolbarSeparator(), 0);
}

// A host destroys a menu that it could find by its name.
GUI_STARTUP_TEST(MenuBuild, MenusThatAreGoneTakeNoItems)
{
    app.init();
    guiMenu("Menu");
    guiMenuItem("Item", 0, 0, 1);
    XtDestroyWidget(app.find("v_menu"));
    settle();
    EXPECT_EQ(guiMenuItem("Other", 0, 0, 2), -1);
    EXPECT_EQ(guiMenuSeparator(), -1);
    EXPECT_EQ(guiMenu("Sub"), -1);
    EXPECT_EQ(guiMenuEnd(), 0);
    guiMenu("New");
    EXPECT_EQ(guiMenuItem("Item", 0, 0, 1), 2);
}
