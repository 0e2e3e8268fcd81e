// palette_test.cpp: the colour table of a picture, on a display.

#include <Xm/Xm.h>

#include "gui_test.h"
#include "host_application.h"
#include "images/display_colours.h"
#include "loaded.h"
#include "round_trips.h"
#include "toolkit/pixmaps.h"

using namespace kite::testing;

namespace {

Colormap defaultColormap()
{
    return DefaultColormapOfScreen(defaultScreen());
}

}  // namespace

GUI_TEST(Palette, AllocatesTheColoursItIsGiven)
{
    ImagePalette palette;
    palette.reset(defaultColormap());
    palette.set(0, 255, 0, 0);
    palette.set(255, 12, 34, 56);
    palette.set(7, 256 + 1, -1, 1000);  // eight bits each
    EXPECT_EQ(palette.isGood(0), 1);
    EXPECT_EQ(palette.get(0), serverPixel(kRed));
    EXPECT_EQ(palette.isGood(255), 1);
    EXPECT_EQ(palette.get(255), serverPixel({12, 34, 56}));
    EXPECT_EQ(palette.isGood(7), 1);
    EXPECT_EQ(palette.get(7), serverPixel({1, 255, 1000 & 0xFF}));
    EXPECT_EQ(palette.isGood(100), 1);  // never set: black
    EXPECT_EQ(palette.get(100), serverPixel({}));
    // Anew after set and after reset.
    palette.set(3, 255, 0, 0);
    EXPECT_EQ(palette.isGood(3), 1);
    palette.set(3, 0, 0, 255);
    EXPECT_EQ(palette.get(3), serverPixel(kRed));  // until it is asked for
    EXPECT_EQ(palette.isGood(3), 1);
    EXPECT_EQ(palette.get(3), serverPixel(kBlue));
    palette.reset(defaultColormap());
    EXPECT_EQ(palette.get(3), 0U);
    EXPECT_EQ(palette.isGood(3), 1);
    EXPECT_EQ(palette.get(3), serverPixel({}));
}

// The harness takes any X error for a failure; and a host that has no handler would be dead.
GUI_TEST(Palette, RefusesEveryColourInAColormapThatIsNone)
{
    Display* const display = toolkit::display();
    const Colormap freed = XCreateColormap(display, RootWindowOfScreen(defaultScreen()),
                                           DefaultVisualOfScreen(defaultScreen()), AllocNone);
    XFreeColormap(display, freed);
    ImagePalette palette;  // colormap 0
    EXPECT_EQ(palette.isGood(0), 0);
    for (const unsigned long colormap : {freed, Colormap{0}, Colormap{1}, ~0UL}) {
        palette.reset(colormap);
        palette.set(1, 1, 2, 3);
        EXPECT_EQ(palette.isGood(1), 0) << colormap;
        EXPECT_EQ(roundTripsDuring(display, [&] { EXPECT_EQ(palette.isGood(1), 0); }), 0);
    }
    palette.reset(defaultColormap());
    EXPECT_EQ(palette.isGood(1), 1);
}

GUI_TEST(Palette, AllocatesInAColormapOfTheHost)
{
    Display* const display = toolkit::display();
    const Colormap own = XCreateColormap(display, RootWindowOfScreen(defaultScreen()),
                                         DefaultVisualOfScreen(defaultScreen()), AllocNone);
    ImagePalette palette;
    palette.reset(own);
    palette.set(1, 1, 2, 3);
    EXPECT_EQ(palette.isGood(1), 1);
    EXPECT_EQ(palette.get(1), serverPixel({1, 2, 3}));
    // Nothing is computed there: it need not be of the screen's visual.
    EXPECT_EQ(kite::images::computedColours(display, own), nullptr);
    EXPECT_EQ(kite::images::computedColours(display, 0), nullptr);
    EXPECT_EQ(kite::images::computedColours(nullptr, own), nullptr);
    XFreeColormap(display, own);
}

GUI_STARTUP_TEST(Palette, WorksOnTheDisplayOfAnOwner)
{
    const auto [context, shell] = openHostApplication();
    ImagePalette palette;
    palette.reset(DefaultColormapOfScreen(XtScreen(shell)));
    palette.set(1, 255, 255, 255);
    EXPECT_EQ(palette.isGood(1), 0);  // no display of the library's yet
    guiSetOwner(shell);
    EXPECT_EQ(palette.isGood(1), 0);  // as long as it is the same colour
    palette.set(1, 255, 255, 255);
    EXPECT_EQ(palette.isGood(1), 1);
    EXPECT_EQ(palette.get(1), WhitePixelOfScreen(XtScreen(shell)));
    XtDestroyWidget(shell);
    XtDestroyApplicationContext(context);
    palette.set(1, 255, 255, 255);
    EXPECT_EQ(palette.isGood(1), 0);
}

// A picture can be for another display than the current one.
GUI_TEST(Palette, OfALoadAllocatesOnTheDisplayOfThePicture)
{
    const std::string path =
        host.addFile("picture.bmp", BmpFile::indexed(8, {kRed}, {{0, 0}}).bytes());
    for (int round = 0; round < 3;
         ++round) {  // each time at an address that may have been one before
        int count = 0;
        Display* const other =
            XtOpenDisplay(XtDisplayToApplicationContext(toolkit::display()), nullptr, "other",
                          "Other", nullptr, 0, &count, nullptr);
        ASSERT_NE(other, nullptr);
        kite::images::Picture picture;
        EXPECT_EQ(roundTripsDuring(toolkit::display(),
                                   [&] {
                                       picture = kite::images::load(XDefaultScreenOfDisplay(other),
                                                                    path, 0);
                                   }),
                  0);
        ASSERT_TRUE(picture);
        XSync(other, False);
        EXPECT_EQ(pixelsOf(picture.pixmap), (Pixels{{serverPixel(kRed), serverPixel(kRed)}}));
        kite::freePixmap(XDefaultScreenOfDisplay(other), picture.pixmap);
        XtCloseDisplay(other);
    }
}
