// The title, the status line and the gauge.

#include <climits>

#include "frame_checks.h"
#include "gui_test.h"

using namespace kite::testing;

namespace {

std::string bytesFrom0xA0()
{
    std::string bytes;
    for (int byte = 0xA0; byte <= 0xFF; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

// Those that ISO 8859-1 gives no character.
std::string controlBytes()
{
    std::string bytes = "a";
    for (int byte = 0x80; byte < 0xA0; ++byte) bytes += static_cast<char>(byte);
    return bytes + 'z';
}

std::string statusLine()
{
    return labelOf(findWidget("v_sline"));
}

int gauge()
{
    return resource<int>(findWidget("v_gauge"), XmNvalue);
}

bool showsTitle(const std::string& title)
{
    Widget const frame = toolkit::root();
    return pumpUntil([&] { return wm::nameOf(frame) == title; });
}

}  // namespace

GUI_TEST(FrameTitle, IsWhatTheWindowManagerShows)
{
    guiSetFrameTitle("kitegui - main.cpp");
    EXPECT_TRUE(showsTitle("kitegui - main.cpp"));
}

GUI_TEST(FrameTitle, NullRestoresTheApplicationTitle)
{
    guiSetFrameTitle("other");
    guiSetFrameTitle(nullptr);
    EXPECT_TRUE(showsTitle("Kite"));
}

GUI_TEST(FrameTitle, EmptyRestoresTheApplicationTitle)
{
    guiSetFrameTitle("other");
    guiSetFrameTitle("");
    EXPECT_TRUE(showsTitle("Kite"));
}

GUI_STARTUP_TEST(FrameTitle, RestoresTheTitleOfTheHost)
{
    guiSetAppInfo("My Host", nullptr);
    app.run([] {
        guiSetFrameTitle("other");
        guiSetFrameTitle("");
        EXPECT_TRUE(showsTitle("My Host"));
    });
}

GUI_STARTUP_TEST(FrameTitle, CanBeSetBeforeTheStart)
{
    app.init();
    guiSetFrameTitle("early");
    EXPECT_TRUE(showsTitle("early"));
}

GUI_TEST(FrameTitle, MayBeLong)
{
    const std::string title(5000, 't');
    guiSetFrameTitle(title.c_str());
    EXPECT_TRUE(showsTitle(title));
}

GUI_TEST(FrameTitle, MayHoldAnyBytes)
{
    guiSetFrameTitle(bytesFrom0xA0().c_str());
    EXPECT_TRUE(showsTitle(bytesFrom0xA0()));
    guiSetFrameTitle(controlBytes().c_str());
    guiSetFrameTitle("after all");
    EXPECT_TRUE(showsTitle("after all"));
}

GUI_TEST(FrameTitle, IsCopied)
{
    char title[] = "first";
    guiSetFrameTitle(title);
    title[0] = 'X';
    EXPECT_TRUE(showsTitle("first"));
}

// The icon keeps the name of the application.
GUI_TEST(FrameTitle, LeavesTheIconName)
{
    guiSetFrameTitle("other");
    EXPECT_TRUE(showsTitle("other"));
    EXPECT_EQ(wm::iconNameOf(app.shell()), "Kite");
}

GUI_TEST(StatusLine, ShowsAText)
{
    guiSetStatusLine("Ready.");
    EXPECT_EQ(statusLine(), "Ready.");
}

GUI_TEST(StatusLine, NullAndEmptyBlankIt)
{
    guiSetStatusLine("Ready.");
    guiSetStatusLine(nullptr);
    EXPECT_EQ(statusLine(), " ");
    guiSetStatusLine("Ready.");
    guiSetStatusLine("");
    EXPECT_EQ(statusLine(), " ");
}

// No event of the application is needed: a host that computes shows where it is.
GUI_TEST(StatusLine, ShowsAtOnce)
{
    const Rect rect = rectOf(findWidget("v_sline"));
    ASSERT_TRUE(screen::waitUntilPainted(findWidget("v_sline")));
    const screen::Picture before = screen::grab(rect);
    guiSetStatusLine("Computing");
    EXPECT_TRUE(changesByItself(rect, before));
}

GUI_TEST(StatusLine, KeepsItsPlaceWithALongText)
{
    const Rect before = rectOf(findWidget("v_sline"));
    const Rect frame = rectOf(app.shell());
    guiSetStatusLine(std::string(3000, 'W').c_str());
    settle();
    EXPECT_EQ(statusLine(), std::string(3000, 'W'));
    EXPECT_EQ(rectOf(findWidget("v_sline")), before);
    EXPECT_EQ(rectOf(app.shell()), frame);
    EXPECT_TRUE(isShown(findWidget("v_gauge")));
}

GUI_TEST(StatusLine, MayBeLongerThanTheServerTakesInOneRequest)
{
    const Rect frame = rectOf(app.shell());
    guiSetStatusLine(std::string(300000, 'W').c_str());
    settle();
    guiSetStatusLine("short");
    settle();
    EXPECT_EQ(statusLine(), "short");
    EXPECT_EQ(rectOf(app.shell()), frame);
}

GUI_TEST(StatusLine, MayHoldAnyBytes)
{
    guiSetStatusLine(bytesFrom0xA0().c_str());
    EXPECT_EQ(statusLine(), bytesFrom0xA0());
    guiSetStatusLine(controlBytes().c_str());
    EXPECT_EQ(statusLine(), controlBytes());
}

// They are characters of the font, not blanks.
GUI_TEST(StatusLine, PaintsBytesOf8859)
{
    Widget const line = findWidget("v_sline");
    guiSetStatusLine("\xC4\xD6\xDC");
    ASSERT_TRUE(screen::waitUntilPainted(line));
    const screen::Picture umlauts = screen::grab(rectOf(line));
    guiSetStatusLine("AOU");
    ASSERT_TRUE(screen::waitUntilPainted(line));
    const screen::Picture letters = screen::grab(rectOf(line));
    guiSetStatusLine(nullptr);
    ASSERT_TRUE(screen::waitUntilPainted(line));
    EXPECT_NE(umlauts, letters);
    EXPECT_NE(umlauts, screen::grab(rectOf(line)));
}

GUI_TEST(StatusLine, IsCopied)
{
    char text[] = "first";
    guiSetStatusLine(text);
    text[0] = 'X';
    EXPECT_EQ(statusLine(), "first");
}

GUI_STARTUP_TEST(StatusLine, CanBeSetBeforeTheStart)
{
    app.init();
    guiSetStatusLine("early");
    app.run([] { EXPECT_EQ(statusLine(), "early"); });
}

GUI_TEST(Gauge, ShowsAPercentage)
{
    for (const int percent : {0, 1, 50, 99, 100, 37}) {
        guiSetProgress(percent);
        EXPECT_EQ(gauge(), percent);
    }
}

GUI_TEST(Gauge, ClampsToItsRange)
{
    const struct {
        int given;
        int shown;
    } rows[] = {{-1, 0}, {-5, 0}, {INT_MIN, 0}, {101, 100}, {150, 100}, {INT_MAX, 100}};
    for (const auto& row : rows) {
        guiSetProgress(50);
        guiSetProgress(row.given);
        EXPECT_EQ(gauge(), row.shown) << row.given;
    }
}

GUI_TEST(Gauge, ShowsAtOnce)
{
    const Rect rect = rectOf(findWidget("v_gauge"));
    ASSERT_TRUE(screen::waitUntilPainted(findWidget("v_gauge")));
    const screen::Picture before = screen::grab(rect);
    guiSetProgress(80);
    EXPECT_TRUE(changesByItself(rect, before));
}

GUI_TEST(Gauge, RaisesNoEvent)
{
    recorder.clear();
    guiSetProgress(40);
    settle();
    EXPECT_TRUE(recorder.events().empty());
}

GUI_STARTUP_TEST(Gauge, CanBeSetBeforeTheStart)
{
    app.init();
    guiSetProgress(25);
    app.run([] { EXPECT_EQ(gauge(), 25); });
}
