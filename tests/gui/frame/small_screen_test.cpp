// A screen that is smaller than the frame: 400 by 250 pixels.

#include "gui_test.h"

using namespace kite::testing;

GUI_STARTUP_TEST(SmallScreen, CentresTheFrameBeyondItsEdges)
{
    app.init();
    EXPECT_EQ(resource<Position>(app.shell(), XmNx), (400 - 450) / 2);
    EXPECT_EQ(resource<Position>(app.shell(), XmNy), (250 - 300) / 2);
    EXPECT_EQ(resource<Dimension>(app.shell(), XmNwidth), 450);
    EXPECT_EQ(resource<Dimension>(app.shell(), XmNheight), 300);
}

GUI_STARTUP_TEST(SmallScreen, TakesAPlaceThatFits)
{
    const struct {
        const char* key;
        int value;
    } saved[] = {{"mwndx", 100}, {"mwndy", 50}, {"mwndw", 300}, {"mwndh", 200}};
    for (const auto& entry : saved) host.profile().setInt(entry.key, entry.value);
    app.init();
    EXPECT_EQ(rectOf(app.shell()), (Rect{100, 50, 300, 200}));
}

GUI_STARTUP_TEST(SmallScreen, RejectsAPlaceForALargerOne)
{
    const struct {
        const char* key;
        int value;
    } saved[] = {{"mwndx", 101}, {"mwndy", 50}, {"mwndw", 300}, {"mwndh", 200}};
    for (const auto& entry : saved) host.profile().setInt(entry.key, entry.value);
    app.init();
    EXPECT_EQ(resource<Dimension>(app.shell(), XmNwidth), 450);
}
