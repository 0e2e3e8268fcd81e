// load_test.cpp: files become pixmaps, pixel by pixel, on displays of any depth.

#include "gui_test.h"
#include "loaded.h"

using namespace kite::testing;
using kite::images::kNoPixmap;
using kite::images::load;
using kite::images::Picture;

namespace {

const BmpFile::Palette kColours{kRed, kGreen, kBlue};

}  // namespace

GUI_TEST(PictureLoader, LoadsEveryKind)
{
    const Pixel red = serverPixel(kRed);
    const Pixel green = serverPixel(kGreen);
    const Pixel blue = serverPixel(kBlue);
    const Pixels expected{{red, green, blue}, {blue, blue, red}};
    const BmpFile::Indexes rows{{0, 1, 2}, {2, 2, 0}};
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(8, kColours, rows).bytes()), expected);
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(4, kColours, rows).bytes()), expected);
    EXPECT_EQ(pixelsLoaded(BmpFile::direct({{kRed, kGreen, kBlue}, {kBlue, kBlue, kRed}}).bytes()),
              expected);
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(1, {kRed, kGreen}, {{0, 1, 0}, {1, 1, 0}}).bytes()),
              (Pixels{{red, green, red}, {green, green, red}}));
    const std::string runs8("\2\2\1\0\0\0\0\3\0\1\2\0\0\1", 14);
    EXPECT_EQ(pixelsLoaded(BmpFile::inRuns(8, kColours, 3, 2, runs8).bytes()), expected);
    const std::string runs4("\2\x22\1\0\0\0\0\3\x01\x20\0\0\1", 13);
    EXPECT_EQ(pixelsLoaded(BmpFile::inRuns(4, kColours, 3, 2, runs4).bytes()), expected);
    // The pixmap is for widgets of the screen.
    const Picture picture = loadBytes(BmpFile::direct(noise(5, 3)).bytes());
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture.width, 5);
    EXPECT_EQ(picture.height, 3);
    EXPECT_EQ(depthOf(picture.pixmap),
              static_cast<unsigned>(DefaultDepthOfScreen(defaultScreen())));
    XFreePixmap(toolkit::display(), picture.pixmap);
}

GUI_TEST(PictureLoader, LeavesTheUndrawnPixelWhereNothingIsDrawn)
{
    const Pixel red = serverPixel(kRed);
    const auto loaded = [](const std::string& runs, Pixel undrawn) {
        return pixelsLoaded(BmpFile::inRuns(8, kColours, 2, 2, runs).bytes(), undrawn);
    };
    const std::string nothing("\0\1", 2);
    const std::string corner("\1\0\0\1", 4);
    for (const Pixel undrawn : {Pixel{0}, Pixel{1}, serverPixel(kGreen)}) {
        EXPECT_EQ(loaded(nothing, undrawn), (Pixels{{undrawn, undrawn}, {undrawn, undrawn}}));
        EXPECT_EQ(loaded(corner, undrawn), (Pixels{{undrawn, undrawn}, {red, undrawn}}));
    }
    // Rows between which others are left out reach their places.
    const std::string gaps("\1\0\0\2\0\2\1\1\0\0\1\2\0\1", 14);
    EXPECT_EQ(
        pixelsLoaded(BmpFile::inRuns(8, kColours, 2, 4, gaps).bytes()),
        (Pixels{
            {serverPixel(kBlue), 0}, {0, serverPixel(kGreen)}, {0, 0}, {serverPixel(kRed), 0}}));
}

GUI_TEST(PictureLoader, ShowsEachColour)
{
    // A palette that is shorter than the depth: the rest is black, not undrawn.
    const Pixel undrawn = serverPixel(kGreen);
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(4, {kRed}, {{0, 1, 15}}).bytes(), undrawn),
              (Pixels{{serverPixel(kRed), serverPixel({}), serverPixel({})}}));
    // Nothing is left of the picture before.
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(4, {kRed, kBlue}, {{1}}).bytes()),
              (Pixels{{serverPixel(kBlue)}}));
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(4, {kRed}, {{1}}).bytes(), undrawn),
              (Pixels{{serverPixel({})}}));
    // No display of the tests reports exactly this grey back, so it is a colour like others.
    EXPECT_EQ(pixelsLoaded(BmpFile::direct({{kGrey}}).bytes()), (Pixels{{serverPixel(kGrey)}}));
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(8, {kGrey}, {{0}}).bytes()),
              (Pixels{{serverPixel(kGrey)}}));
}

// The screen's own graphics context is everybody's.
GUI_TEST(PictureLoader, DoesNotDependOnTheContextOfTheScreen)
{
    Display* const display = toolkit::display();
    GC const context = DefaultGCOfScreen(defaultScreen());
    XSetFunction(display, context, GXinvert);
    const Pixels pixels = pixelsLoaded(BmpFile::direct({{kRed, kGreen}}).bytes());
    XSetFunction(display, context, GXcopy);
    EXPECT_EQ(pixels, (Pixels{{serverPixel(kRed), serverPixel(kGreen)}}));
}
