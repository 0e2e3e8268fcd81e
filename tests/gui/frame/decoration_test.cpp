// The decoration of a window manager that puts the frame at 0, 0 of a window within the decoration: its
// offset is that window's.

#include "connection.h"
#include "gui_test.h"

using namespace kite::testing;

namespace {

int savedInt(const char* key)
{
    return HostDouble::instance().profile().intOf(key).value_or(-1000);
}

// Closes the frame, at the place where it is, with another decoration window.
void closeWithDecorationAt(Point corner)
{
    App::instance().run([&] {
        Widget const frame = toolkit::root();
        const Rect inside = wm::clientRect(frame);
        ASSERT_TRUE(pumpUntil([&] {
            return resource<Position>(frame, XmNx) == inside.x &&
                   resource<Position>(frame, XmNy) == inside.y;
        }));
        const Window window =
            XCreateSimpleWindow(connection(), rootWindow(), corner.x, corner.y, 10, 10, 0, 0, 0);
        XSync(connection(), False);
        decorWindow = static_cast<int>(window);
    });
}

void openAt(Point corner)
{
    const struct {
        const char* key;
        int value;
    } saved[] = {{"mwndx", corner.x}, {"mwndy", corner.y}, {"mwndw", 400}, {"mwndh", 300}};
    for (const auto& entry : saved)
        HostDouble::instance().profile().setInt(entry.key, entry.value, "kite");
}

}  // namespace

GUI_STARTUP_TEST(Decoration, IsTakenOffTheSavedPlace)
{
    openAt({180, 130});
    app.run([&] { EXPECT_EQ(wm::frameRect(app.shell()).x, 180); });
    EXPECT_EQ(savedInt("mwndx"), 180);
    EXPECT_EQ(savedInt("mwndy"), 130);
}

GUI_STARTUP_TEST(Decoration, TooWideGivesTheCorner)
{
    openAt({180, 130});
    closeWithDecorationAt({35, 20});
    EXPECT_EQ(savedInt("mwndx"), 0);
    EXPECT_EQ(savedInt("mwndy"), 0);
    EXPECT_EQ(savedInt("mwndw"), 400);
    EXPECT_EQ(savedInt("mwndh"), 300);
}

GUI_STARTUP_TEST(Decoration, TooHighGivesTheCorner)
{
    openAt({180, 130});
    closeWithDecorationAt({5, 70});
    EXPECT_EQ(savedInt("mwndx"), 0);
    EXPECT_EQ(savedInt("mwndy"), 0);
}
