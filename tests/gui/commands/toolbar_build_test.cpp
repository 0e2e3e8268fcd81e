// The toolbar as it is built: buttons, results, limits, wrong calls.

#include <Xm/PushB.h>
#include <Xm/ToggleB.h>

#include "commands_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

constexpr int kMostButtons = 512;

int shadowOf(Widget button)
{
    return resource<Dimension>(button, XmNshadowThickness);
}

int addButton(int style, int id)
{
    addImage("image");
    return guiToolbarButton("image", nullptr, style, id);
}

std::string pathOf(const std::string& name)
{
    return HostDouble::instance().appDir().string() + "/tbbb/" + name + ".bmp";
}

}  // namespace

GUI_STARTUP_TEST(ToolbarBuild, ButtonsAreWhatTheirStyleSays)
{
    app.init();
    EXPECT_EQ(addButton(GUI_PLAIN, 1), 1);
    EXPECT_EQ(addButton(GUI_CHECK, 2), 2);
    EXPECT_EQ(addButton(GUI_PLAIN, 0), 3);
    const auto buttons = toolbarButtons();
    ASSERT_EQ(buttons.size(), 3U);
    EXPECT_EQ(XtClass(buttons[0]), xmPushButtonWidgetClass);
    EXPECT_EQ(XtClass(buttons[1]), xmToggleButtonWidgetClass);
    for (Widget const button : buttons) {
        EXPECT_STREQ(XtName(button), "v_tbbtn");
        EXPECT_EQ(resource<unsigned char>(button, XmNlabelType), XmPIXMAP);
        EXPECT_EQ(resource<Dimension>(button, XmNwidth), 35);
        EXPECT_EQ(resource<Dimension>(button, XmNheight), 33);
        EXPECT_EQ(resource<Dimension>(button, XmNmarginWidth), 1);
        EXPECT_EQ(resource<Dimension>(button, XmNmarginHeight), 1);
    }
    EXPECT_EQ(resource<unsigned char>(buttons[1], XmNindicatorOn), XmINDICATOR_NONE);
}

GUI_STARTUP_TEST(ToolbarBuild, StyleSettingGivesPlainButtonsAShadow)
{
    app.init();
    int id = 1;
    for (const auto& [setting, plainShadow] :
         std::vector<std::pair<int, int>>{{0, 0}, {1, 2}, {2, 0}, {-1, 0}}) {
        host.profile().setInt("tbbstyle", setting);
        addButton(GUI_PLAIN, id++);
        EXPECT_EQ(shadowOf(toolbarButtons().back()), plainShadow) << setting;
        addButton(GUI_CHECK, id++);
        EXPECT_EQ(shadowOf(toolbarButtons().back()), 2) << setting;
    }
    host.profile().remove("tbbstyle");
    EXPECT_EQ(host.profile().accesses("tbbstyle").front(),
              (ProfileAccess{ProfileAccess::Kind::ReadInt, "kite", "tbbstyle", 0}));
}

GUI_STARTUP_TEST(ToolbarBuild, SeparatorsAreCounted)
{
    app.init();
    EXPECT_EQ(guiToolbarSeparator(), 0);
    addButton(GUI_PLAIN, 1);
    EXPECT_EQ(guiToolbarSeparator(), 1);
    EXPECT_EQ(guiToolbarSeparator(), 2);
    addButton(GUI_PLAIN, 2);
    EXPECT_EQ(guiToolbarSeparator(), 3);
    EXPECT_EQ(toolbarButtons().size(), 2U);
    guiRestart();
    EXPECT_THAT(toolbarButtons(), IsEmpty());
    EXPECT_EQ(guiToolbarSeparator(), 0);
    EXPECT_EQ(addButton(GUI_PLAIN, 1), 1);
    EXPECT_EQ(guiToolbarSeparator(), 1);
}

GUI_STARTUP_TEST(ToolbarBuild, ButtonsHaveALimit)
{
    app.init();
    addImage("image");
    for (int id = 0; id < kMostButtons; ++id)
        ASSERT_EQ(guiToolbarButton("image", "tip", GUI_PLAIN, id), id + 1);
    EXPECT_MISUSE(guiToolbarButton("none", nullptr, GUI_PLAIN, 600),
                  "ToolbarButton: too many buttons", -1);
    EXPECT_EQ(toolbarButtons().size(), static_cast<std::size_t>(kMostButtons));
}

// A host without buttons has lost its toolbar with the start.
GUI_TEST(ToolbarBuild, NothingWithoutAToolbar)
{
    guiRestart();
    addImage("image");
    XtDestroyWidget(app.find("v_toolbar"));
    settle();
    EXPECT_EQ(guiToolbarButton("image", nullptr, GUI_PLAIN, 1), 0);
    EXPECT_EQ(guiToolbarButton("missing", nullptr, GUI_PLAIN, 1), 0);
    EXPECT_EQ(guiToolbarSeparator(), 0);
    EXPECT_MISUSE(guiToolbarButton("image", nullptr, GUI_PLAIN, -1),
                  "ToolbarButton: invalid command id -1", -1);
}

// Each call is wrong in its own way and in all the later ones.
GUI_STARTUP_TEST(ToolbarMisuse, ButtonsAreCheckedInOrder)
{
    app.init();
    guiMenu("Menu");
    guiMenuItem("Plain", 0, GUI_PLAIN, 10);
    guiMenuItem("Check", 0, GUI_CHECK, 11);
    addButton(GUI_PLAIN, 20);
    const char* const no = "missing";
    EXPECT_MISUSE(guiToolbarButton(nullptr, no, 2, -3),
                  "ToolbarButton: invalid image name for id -3", -1);
    EXPECT_MISUSE(guiToolbarButton("", no, 2, -3), "ToolbarButton: invalid image name for id -3",
                  -1);
    EXPECT_MISUSE(guiToolbarButton(no, no, 2, -3), "ToolbarButton: invalid command id -3", -1);
    EXPECT_MISUSE(guiToolbarButton(no, no, 2, 0), "ToolbarButton: invalid style for id 0", -1);
    EXPECT_MISUSE(guiToolbarButton(no, no, -1, 20), "ToolbarButton: invalid style for id 20", -1);
    EXPECT_MISUSE(guiToolbarButton(no, no, 1, 0), "ToolbarButton: command 0 must use plain style",
                  -1);
    EXPECT_MISUSE(guiToolbarButton(no, no, 1, 20), "ToolbarButton: duplicate button id 20", -1);
    EXPECT_MISUSE(guiToolbarButton(no, no, 1, 10),
                  "ToolbarButton: menu/toolbar style conflict for id 10", -1);
    EXPECT_MISUSE(guiToolbarButton(no, no, 0, 11),
                  "ToolbarButton: menu/toolbar style conflict for id 11", -1);
    EXPECT_MISUSE(guiToolbarButton(no, no, 0, 10),
                  "ToolbarButton: cannot load image " + pathOf("missing"), -1);
    EXPECT_EQ(toolbarButtons().size(), 1U);
    EXPECT_EQ(addButton(GUI_CHECK, 11), 2);
}

GUI_STARTUP_TEST(ToolbarMisuse, ImagesHaveOneSize)
{
    app.init();
    for (const auto& [width, height] :
         std::vector<std::pair<int, int>>{{20, 21}, {21, 20}, {22, 21}, {21, 22}, {1, 1}}) {
        const std::string path = addImage("wrong", width, height);
        EXPECT_MISUSE(guiToolbarButton("wrong", nullptr, GUI_PLAIN, 1),
                      "ToolbarButton: image " + pathOf("wrong") + " has wrong size", -1);
    }
    host.addFile("tbbb/text.bmp", "no image");
    EXPECT_MISUSE(guiToolbarButton("text", nullptr, GUI_PLAIN, 1),
                  "ToolbarButton: cannot load image " + pathOf("text"), -1);
    EXPECT_THAT(toolbarButtons(), IsEmpty());
    EXPECT_EQ(addButton(GUI_PLAIN, 1), 1);
}

GUI_STARTUP_TEST(ToolbarMisuse, NamesTheWholePath)
{
    std::string directory = host.appDirName();
    while (directory.size() < 3000) directory += "././";
    host.setAppDirName(directory);
    app.init();
    EXPECT_MISUSE(guiToolbarButton("missing", nullptr, GUI_PLAIN, 1),
                  "ToolbarButton: cannot load image " + directory + "tbbb/missing.bmp", -1);
}

GUI_STARTUP_TEST(ToolbarMisuse, ImageNamesOfAllLengths)
{
    app.init();
    const std::string longest(127, 'n');
    addImage(longest);
    EXPECT_EQ(guiToolbarButton(longest.c_str(), nullptr, GUI_PLAIN, 1), 1);
    addImage("folder/image");
    EXPECT_EQ(guiToolbarButton("folder/image", nullptr, GUI_PLAIN, 2), 2);
    EXPECT_MISUSE(guiToolbarButton((longest + 'n').c_str(), nullptr, GUI_PLAIN, 3),
                  "ToolbarButton: invalid image name for id 3", -1);
}

GUI_STARTUP_TEST(ToolbarMisuse, LongTipsAreDropped)
{
    app.init();
    addImage("image");
    EXPECT_EQ(guiToolbarButton("image", std::string(63, 't').c_str(), GUI_PLAIN, 1), 1);
    EXPECT_MISUSE(guiToolbarButton("image", std::string(64, 't').c_str(), GUI_PLAIN, 2),
                  "ToolbarButton: invalid tooltip for button 2", 2);
    EXPECT_EQ(guiToolbarButton("image", "", GUI_PLAIN, 3), 3);
    EXPECT_EQ(toolbarButtons().size(), 3U);
}
