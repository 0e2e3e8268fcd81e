// x_error_trap_test.cpp: errors of some requests are noted, those of others go where they always go.

#include "toolkit/x_error_trap.h"

#include "gui_test.h"
#include "round_trips.h"

using namespace kite::testing;
using kite::XErrorTrap;

namespace {

constexpr Window kNoWindow = 1;

}  // namespace

GUI_TEST(ErrorTrap, CatchesWhatComesWithinIt)
{
    Display* const display = toolkit::display();
    {
        const XErrorTrap trap{display};
        EXPECT_FALSE(trap.hasCaught());
        XMapWindow(display, kNoWindow);
        EXPECT_TRUE(trap.hasCaught());
        EXPECT_TRUE(trap.hasCaught());
    }
    const XErrorTrap next{display};
    EXPECT_FALSE(next.hasCaught());
    XMapWindow(display, kNoWindow);  // its end waits for it
}

GUI_TEST(ErrorTrap, LeavesEarlierAndLaterErrorsToOthers)
{
    Display* const display = toolkit::display();
    ExpectedXError expected{BadWindow};
    XMapWindow(display, kNoWindow);
    {
        const XErrorTrap trap{display};
        XNoOp(display);
        EXPECT_FALSE(trap.hasCaught());
    }
    EXPECT_EQ(expected.count(), 1);
    XMapWindow(display, kNoWindow);
    XSync(display, False);
    EXPECT_EQ(expected.count(), 2);
}

GUI_TEST(ErrorTrap, MayStandInsideAnother)
{
    Display* const display = toolkit::display();
    const XErrorTrap outer{display};
    {
        XMapWindow(display, kNoWindow);
        const XErrorTrap inner{display};
        XNoOp(display);
        EXPECT_FALSE(inner.hasCaught());
        EXPECT_TRUE(outer.hasCaught());
    }
    const XErrorTrap second{display};
    {
        const XErrorTrap inner{display};
        XMapWindow(display, kNoWindow);
        EXPECT_TRUE(inner.hasCaught());
    }
    EXPECT_FALSE(second.hasCaught());
}

GUI_TEST(ErrorTrap, AsksTheServerOnlyOnce)
{
    Display* const display = toolkit::display();
    XSync(display, False);
    EXPECT_EQ(roundTripsDuring(display, [&] { const XErrorTrap trap{display}; }), 0);
    EXPECT_EQ(roundTripsDuring(display,
                               [&] {
                                   const XErrorTrap trap{display};
                                   XNoOp(display);
                                   EXPECT_FALSE(trap.hasCaught());
                               }),
              1);
}
