// colour_table_test.cpp: displays with a colour table of 256 entries, which other programs use as well.

#include "connection.h"
#include "gui_test.h"
#include "images/display_colours.h"
#include "loaded.h"
#include "round_trips.h"
#include "toolkit/colours.h"

using namespace kite::testing;

namespace {

constexpr int kPixmap = 1;

Colormap defaultColormap()
{
    return DefaultColormapOfScreen(defaultScreen());
}

// Takes every free entry, as another program.
void fillColormap()
{
    unsigned long pixel = 0;
    while (XAllocColorCells(connection(), defaultColormap(), False, nullptr, 0, &pixel, 1)) {}
    XSync(connection(), False);
}

}  // namespace

GUI_TEST(ColourTable, IsAskedOnceForEachColourThatIsDrawn)
{
    EXPECT_EQ(kite::images::computedColours(toolkit::display(), defaultColormap()), nullptr);
    const BmpFile::Colours two{{kRed, kGreen, kRed}, {kGreen, kGreen, kRed}};
    EXPECT_EQ(roundTripsToLoad(BmpFile::direct(two)), kPixmap + 2);
    EXPECT_EQ(roundTripsToLoad(BmpFile::direct(two)), kPixmap + 2);  // for each picture anew
    EXPECT_EQ(
        roundTripsToLoad(BmpFile::indexed(8, manyColours(), {{7, 9, 7}, {9, 9, 7}, {8, 7, 9}})),
        kPixmap + 3);
}

GUI_TEST(ColourTable, LeavesTheUndrawnPixelWhenItIsFull)
{
    fillColormap();
    const BmpFile::Colour unlikely{3, 141, 59};  // no program has allocated it
    const Pixel undrawn = WhitePixelOfScreen(defaultScreen());
    EXPECT_EQ(pixelsLoaded(BmpFile::direct({{unlikely, {}, unlikely}}).bytes(), undrawn),
              (Pixels{{undrawn, serverPixel({}), undrawn}}));
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(8, {unlikely, {}}, {{0, 1, 0}}).bytes(), undrawn),
              (Pixels{{undrawn, serverPixel({}), undrawn}}));
}

GUI_TEST(ColourTable, IsNotAskedAgainForWhatItHasRefused)
{
    fillColormap();
    ImagePalette palette;
    palette.reset(defaultColormap());
    palette.set(4, 3, 141, 59);
    Display* const display = toolkit::display();
    EXPECT_EQ(roundTripsDuring(display, [&] { EXPECT_EQ(palette.isGood(4), 0); }), 1);
    EXPECT_EQ(roundTripsDuring(display, [&] { EXPECT_EQ(palette.isGood(4), 0); }), 0);
    EXPECT_EQ(palette.get(4), 0U);
    palette.set(4, 3, 141, 59);  // asks for it anew
    EXPECT_EQ(roundTripsDuring(display, [&] { EXPECT_EQ(palette.isGood(4), 0); }), 1);
    palette.set(4, 0, 0, 0);
    EXPECT_EQ(palette.isGood(4), 1);
}

GUI_TEST(ColourTable, AllocatesOnlyWhatIsAskedFor)
{
    ImagePalette palette;
    palette.reset(defaultColormap());
    for (int i = 0; i < 256; ++i) palette.set(i, i, 255 - i, 7);
    Display* const display = toolkit::display();
    const auto askTen = [&] {
        for (int i = 20; i < 30; ++i) EXPECT_EQ(palette.isGood(i), 1);
    };
    EXPECT_EQ(roundTripsDuring(display, askTen), 10);
    EXPECT_EQ(roundTripsDuring(display, askTen), 0);
    EXPECT_EQ(roundTripsDuring(display,
                               [&] {
                                   EXPECT_EQ(palette.isGood(-1), 0);
                                   EXPECT_EQ(palette.isGood(256), 0);
                               }),
              0);
    palette.reset(defaultColormap());
    EXPECT_EQ(roundTripsDuring(display, [&] { EXPECT_EQ(palette.isGood(20), 1); }), 1);
}

// A text in a colour that cannot be had is white: the host sees that something is amiss.
GUI_TEST(ColourTable, ColoursOfTextsAreWhiteWhenItIsFull)
{
    fillColormap();
    EXPECT_EQ(kite::allocateColour(app.shell(), {3 * 257, 141 * 257, 59 * 257}),
              WhitePixelOfScreen(defaultScreen()));
    EXPECT_EQ(kite::allocateColour(app.shell(), {0, 0, 0}), BlackPixelOfScreen(defaultScreen()));
}
