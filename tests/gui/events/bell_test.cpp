// guiBeep: the display's bell.

#include "bell_watch.h"
#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_TEST(Beep, RingsTheBellAtVolumeFifty)
{
    BellWatch bell;
    guiBeep();
    EXPECT_TRUE(bell.waitForRings(1));
    EXPECT_THAT(bell.rings(), ElementsAre(50));
}

GUI_TEST(Beep, RingsAtOnceWhileTheHostComputes)
{
    BellWatch bell;
    guiBeep();
    EXPECT_TRUE(waitUntil([&] { return !bell.rings().empty(); }));
}

GUI_TEST(Beep, RingsEachTime)
{
    BellWatch bell;
    for (int i = 0; i < 3; ++i) guiBeep();
    EXPECT_TRUE(bell.waitForRings(3));
    EXPECT_THAT(bell.rings(), ElementsAre(50, 50, 50));
}

GUI_TEST(Beep, RingsFromWithinABox)
{
    BellWatch bell;
    app.whenShown("v_infobox", [&](Shown box) {
        guiBeep();
        EXPECT_TRUE(bell.waitForRings(1));
        box.key(XK_Return);
    });
    guiInfoBox("Ding");
}

GUI_STARTUP_TEST(Beep, IsSilentWithoutADisplay)
{
    BellWatch bell;
    guiBeep();
    app.run([] {});
    guiBeep();
    EXPECT_THAT(bell.rings(), IsEmpty());
}
