// screen_test.cpp: pixels are those that the user sees.

#include "gui_test.h"

#include <cstring>
#include <filesystem>

#include "probe_window.h"

using namespace kite::testing;

namespace {

void paint(Widget widget, const char* colour)
{
    XtVaSetValues(widget, XtVaTypedArg, XmNbackground, XmRString, colour, std::strlen(colour) + 1,
                  nullptr);
}

}  // namespace

GUI_TEST(Screen, ShowsTheColoursOfAWidget)
{
    ProbeWindow window;
    paint(window.canvas, "#ff8000");
    EXPECT_TRUE(screen::waitUntilPainted(window.canvas));
    const screen::Colour orange{0xff, 0x80, 0x00};
    EXPECT_EQ(screen::colourAt(rectOf(window.canvas).centre()), orange);
    EXPECT_EQ(screen::colourNamed("#ff8000"), orange);
    EXPECT_EQ(screen::colourOf(window.canvas, resource<Pixel>(window.canvas, XmNbackground)),
              orange);

    const screen::Picture picture = screen::grab(window.canvas);
    EXPECT_EQ(picture.count(orange), picture.width() * picture.height());
}

GUI_TEST(Screen, IsCutAtItsEdges)
{
    const screen::Picture picture = screen::grab(Rect{-10, -10, 30, 25});
    EXPECT_EQ(picture.width(), 20);
    EXPECT_EQ(picture.height(), 15);
}

GUI_TEST(Screen, IsSavedAsPng)
{
    const std::filesystem::path path = host.appDir() / "frame.png";
    ASSERT_TRUE(screen::grab(app.shell()).savePng(path));
    Process identify{{"identify", "-format", "%m %wx%h", path.string()}};
    ASSERT_TRUE(identify.wait());
    EXPECT_EQ(identify.output(), "PNG 450x300");
}

GUI_TEST(Screen, HasTheSizeThatWasAskedFor)
{
    EXPECT_EQ(screen::grab().width(), 1280);
    EXPECT_EQ(screen::grab().height(), 1024);
}
