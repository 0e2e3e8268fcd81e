// guiSetAppInfo, as the running frame shows it.

#include "gui_test.h"

using namespace kite::testing;

namespace {

struct Names {
    std::string name;
    std::string className;
};

Names applicationNames(Widget widget)
{
    String name = nullptr;
    String className = nullptr;
    XtGetApplicationNameAndClass(XtDisplay(widget), &name, &className);
    return {name, className};
}

// The instance and the class that the window tells the window manager, with their null bytes.
std::string classOfWindow(Widget widget)
{
    return wm::bytesOf(windowOf(widget), "WM_CLASS").value_or("");
}

std::string twoStrings(const std::string& first, const std::string& second)
{
    return first + '\0' + second + '\0';
}

}  // namespace

GUI_TEST(AppInfo, HasDefaults)
{
    EXPECT_STREQ(XtName(app.shell()), "Kite");
    EXPECT_EQ(wm::nameOf(app.shell()), "Kite");
    EXPECT_EQ(wm::iconNameOf(app.shell()), "Kite");
    EXPECT_EQ(applicationNames(app.shell()).name, "Kite");
    EXPECT_EQ(classOfWindow(app.shell()), twoStrings("Kite", "- not used -"));
}

GUI_STARTUP_TEST(AppInfo, TitleNamesFrameIconShellAndConnection)
{
    guiSetAppInfo("My Host", "myhost");
    app.run([&] {
        EXPECT_STREQ(XtName(app.shell()), "My Host");
        EXPECT_EQ(wm::nameOf(app.shell()), "My Host");
        EXPECT_EQ(wm::iconNameOf(app.shell()), "My Host");
        EXPECT_EQ(applicationNames(app.shell()).name, "My Host");
        EXPECT_EQ(applicationNames(app.shell()).className, "- not used -");
        EXPECT_EQ(classOfWindow(app.shell()), twoStrings("My Host", "- not used -"));
    });
}

GUI_STARTUP_TEST(AppInfo, TitleKeepsSixtyThreeBytes)
{
    const std::string text(100, 't');
    guiSetAppInfo(text.c_str(), nullptr);
    app.run([&] {
        EXPECT_EQ(wm::nameOf(app.shell()), std::string(63, 't'));
        EXPECT_STREQ(XtName(app.shell()), std::string(63, 't').c_str());
    });
}

GUI_STARTUP_TEST(AppInfo, NameKeepsSixtyThreeBytes)
{
    const std::string text(100, 'n');
    guiSetAppInfo(nullptr, text.c_str());
    app.init();
    ASSERT_FALSE(host.profile().accesses().empty());
    EXPECT_EQ(host.profile().accesses().front().section, std::string(63, 'n'));
}

GUI_STARTUP_TEST(AppInfo, TextsOfSixtyThreeBytesAreWhole)
{
    const std::string title(63, 't');
    const std::string name(63, 'n');
    guiSetAppInfo(title.c_str(), name.c_str());
    app.init();
    EXPECT_EQ(wm::nameOf(app.shell()), title);
    ASSERT_FALSE(host.profile().accesses().empty());
    EXPECT_EQ(host.profile().accesses().front().section, name);
}

GUI_STARTUP_TEST(AppInfo, NullAndEmptyKeepWhatWasSet)
{
    guiSetAppInfo("First", "first");
    guiSetAppInfo(nullptr, "second");
    guiSetAppInfo("Third", nullptr);
    guiSetAppInfo("", "");
    app.init();
    EXPECT_EQ(wm::nameOf(app.shell()), "Third");
    ASSERT_FALSE(host.profile().accesses().empty());
    EXPECT_EQ(host.profile().accesses().front().section, "second");
}

GUI_STARTUP_TEST(AppInfo, NullAndEmptyKeepTheDefaults)
{
    guiSetAppInfo(nullptr, nullptr);
    guiSetAppInfo("", "");
    app.init();
    EXPECT_EQ(wm::nameOf(app.shell()), "Kite");
    ASSERT_FALSE(host.profile().accesses().empty());
    EXPECT_EQ(host.profile().accesses().front().section, "kite");
}

// A later text is not mixed with the longer one before it.
GUI_STARTUP_TEST(AppInfo, LaterTextsReplaceEarlierOnes)
{
    guiSetAppInfo("A long title", "a long name");
    guiSetAppInfo("T", "n");
    app.init();
    EXPECT_EQ(wm::nameOf(app.shell()), "T");
    ASSERT_FALSE(host.profile().accesses().empty());
    EXPECT_EQ(host.profile().accesses().front().section, "n");
}

// The harness makes every warning of the toolkit a failure, unless the library has taken its place.
GUI_STARTUP_TEST(AppInfo, ToolkitWarningsAreDropped)
{
    app.leavesWarningsToLibrary = true;
    guiSetAppInfo("Title", "name");
    ::testing::internal::CaptureStderr();
    app.run([&] {
        XtAppWarning(toolkit::context(), "nobody hears this");
        XtAppWarningMsg(toolkit::context(), "name", "type", "class", "nor this", nullptr, nullptr);
    });
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

GUI_TEST(AppInfo, WhileTheFrameRunsTheTitleComesWithTheNextReset)
{
    guiSetAppInfo("Later", nullptr);
    EXPECT_EQ(wm::nameOf(app.shell()), "Kite");
    guiSetFrameTitle(nullptr);
    EXPECT_TRUE(pumpUntil([&] { return wm::nameOf(app.shell()) == "Later"; }));
}
