// decorWindow without a window manager.

#include "connection.h"
#include "events_support.h"

using namespace kite::testing;

GUI_TEST(NoDecoration, IsUnknown)
{
    EXPECT_EQ(parentOf(windowOf(app.shell())), rootWindow());
    EXPECT_EQ(decorWindow, 666);
}

GUI_TEST(NoDecoration, IsUnknownInABox)
{
    app.whenShown("v_infobox", [](Shown box) {
        EXPECT_EQ(decorWindow, 666);
        box.click("OK");
    });
    guiInfoBox("Bare");
}
