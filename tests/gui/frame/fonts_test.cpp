// The three fonts of the frame.

#include <Xm/LabelG.h>
#include <Xm/PushB.h>
#include <Xm/Text.h>

#include "connection.h"
#include "frame_checks.h"
#include "gui_test.h"
#include "server_font.h"

using namespace kite::testing;

namespace {

constexpr char kHelvetica[] = "-adobe-helvetica-medium-r-normal--14-100-100-100-p-*-iso8859-1";
constexpr char kFixed[] = "-misc-fixed-medium-r-normal--14-110-100-100-c-*-iso8859-1";
constexpr char kCourier[] = "-adobe-courier-bold-r-normal--24-240-75-75-m-*-iso8859-1";
constexpr char kMissing[] = "-nobody-nothing-medium-r-normal--14-*-*-*-*-*-iso8859-1";

std::string fontOf(const char* name)
{
    return fontNameOf(findWidget(name), XmNfontList);
}

// Of a menu's title, which has the menu bar's font.
std::string fontOfMenuTitle()
{
    if (!findWidget("v_mbtn")) guiMenu("title");
    return fontNameOf(findWidget("v_mbtn"), XmNfontList);
}

// Of widgets that nobody has given a font.
std::string toolkitFontOf(WidgetClass widgetClass, const char* parent)
{
    Widget const plain = XtVaCreateWidget("plain", widgetClass, findWidget(parent), nullptr);
    return fontNameOf(plain, XmNfontList);
}

}  // namespace

GUI_TEST(FrameFonts, HaveDefaults)
{
    ASSERT_NE(fontNameFor(kHelvetica), "");
    ASSERT_NE(fontNameFor(kFixed), "");
    EXPECT_EQ(fontOf("v_sline"), fontNameFor(kHelvetica));
    EXPECT_EQ(fontOfMenuTitle(), fontNameFor(kHelvetica));
    EXPECT_EQ(fontOf("v_text"), fontNameFor(kFixed));
}

GUI_STARTUP_TEST(FrameFonts, EachHasItsOwnKey)
{
    host.profile().setString("fnamm", kCourier);
    host.profile().setString("fnamn", "fixed");
    host.profile().setString("fnamt", "8x13");
    app.run([] {
        EXPECT_EQ(fontOf("v_sline"), fontNameFor(kCourier));
        EXPECT_EQ(fontOfMenuTitle(), fontNameFor("fixed"));
        EXPECT_EQ(fontOf("v_text"), fontNameFor("8x13"));
    });
}

GUI_STARTUP_TEST(FrameFonts, EmptyNamesCountAsAbsent)
{
    for (const char* key : {"fnamm", "fnamn", "fnamt"}) host.profile().setString(key, "");
    app.run([] {
        EXPECT_EQ(fontOf("v_sline"), fontNameFor(kHelvetica));
        EXPECT_EQ(fontOfMenuTitle(), fontNameFor(kHelvetica));
        EXPECT_EQ(fontOf("v_text"), fontNameFor(kFixed));
    });
}

GUI_STARTUP_TEST(FrameFonts, MissingOnesLeaveTheToolkitsOwn)
{
    for (const char* key : {"fnamm", "fnamn", "fnamt"}) host.profile().setString(key, kMissing);
    app.run([] {
        EXPECT_EQ(fontOf("v_sline"), toolkitFontOf(xmLabelGadgetClass, "v_statusbar"));
        EXPECT_EQ(fontOf("v_text"), toolkitFontOf(xmTextWidgetClass, "v_scroll"));
        EXPECT_NE(fontOfMenuTitle(), fontNameFor(kHelvetica));
    });
}

GUI_STARTUP_TEST(FrameFonts, OneMissingLeavesTheOthers)
{
    host.profile().setString("fnamm", kMissing);
    app.run([] {
        EXPECT_NE(fontOf("v_sline"), fontNameFor(kHelvetica));
        EXPECT_EQ(fontOfMenuTitle(), fontNameFor(kHelvetica));
        EXPECT_EQ(fontOf("v_text"), fontNameFor(kFixed));
    });
}

// Buttons anywhere else in the frame, and in boxes, do not take it for theirs.
GUI_STARTUP_TEST(FrameFonts, MenuBarsOwnIsForMenusOnly)
{
    host.profile().setString("fnamn", kCourier);
    app.run([&] {
        EXPECT_EQ(fontOfMenuTitle(), fontNameFor(kCourier));
        EXPECT_NE(toolkitFontOf(xmPushButtonWidgetClass, "v_statusbar"), fontNameFor(kCourier));
        app.whenShown("v_askbox", [](Shown box) {
            for (const char* button : {"OK", "Cancel"})
                EXPECT_EQ(fontNameOf(box.child(button), XmNfontList), fontNameFor(kHelvetica));
            EXPECT_NE(fontNameOf(box.child("Help"), XmNfontList), fontNameFor(kCourier));
            box.key(XK_Escape);
        });
        guiOkCancelBox("?");
    });
}

// The longest name that fits the buffer, and one that does not: the server knows neither.
GUI_STARTUP_TEST(FrameFonts, LongNamesAreSafe)
{
    host.profile().setString("fnamm", std::string(127, 'x'));
    host.profile().setString("fnamn", std::string(128, 'x'));
    host.profile().setString("fnamt", std::string(5000, 'x'));
    app.run([] {
        EXPECT_EQ(fontOf("v_text"), toolkitFontOf(xmTextWidgetClass, "v_scroll"));
        guiSetStatusLine("shown");
        EXPECT_EQ(labelOf(findWidget("v_sline")), "shown");
    });
}

GUI_STARTUP_TEST(FrameFonts, NameOfAllTheRoomIsWhole)
{
    const std::string name(127, 'f');
    giveServerFont(name, "8x13");
    ASSERT_EQ(fontNameFor(name), fontNameFor("8x13"));
    host.profile().setString("fnamt", name);
    app.run([] { EXPECT_EQ(fontOf("v_text"), fontNameFor("8x13")); });
}

// Fonts are freed with the frame and loaded anew.
GUI_STARTUP_TEST(FrameFonts, AreReadAnewForTheNextFrame)
{
    app.run([] { EXPECT_EQ(fontOf("v_text"), fontNameFor(kFixed)); });
    host.profile().setString("fnamt", "8x13");
    app.run([] { EXPECT_EQ(fontOf("v_text"), fontNameFor("8x13")); });
}

// Also in a session that goes on, of a host with a loop of its own.
GUI_STARTUP_TEST(FrameFonts, AreReadAnewWithoutAMainLoop)
{
    app.init();
    EXPECT_EQ(fontOf("v_text"), fontNameFor(kFixed));
    guiClose(0);
    host.profile().setString("fnamt", "8x13");
    guiInit(Recorder::hostCallback());
    toolkit::attach(guiGetTopWnd());
    EXPECT_EQ(fontNameOf(findWidget("v_text", guiGetTopWnd()), XmNfontList), fontNameFor("8x13"));
    app.run([] {});
}

GUI_STARTUP_TEST(FrameFonts, ShowOnTheScreen)
{
    host.profile().setString("fnamm", kCourier);
    app.run([] {
        // 24 pixels high, where the default has 14.
        EXPECT_GE(rectOf(findWidget("v_sline")).height, 24);
    });
}
