// load_test.cpp: files become pixmaps, pixel by pixel.

#include <X11/Xutil.h>

#include "bmp_file.h"
#include "gui_test.h"
#include "loaded.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

constexpr BmpFile::Colour kRed{255, 0, 0};
constexpr BmpFile::Colour kGreen{0, 255, 0};
constexpr BmpFile::Colour kBlue{0, 0, 255};
constexpr BmpFile::Colour kGrey{191, 191, 191};

Pixel pixelOf(BmpFile::Colour colour)
{
    return serverPixel(colour.red, colour.green, colour.blue);
}

}  // namespace

GUI_TEST(PictureLoader, LoadsEveryKind)
{
    const Pixel red = pixelOf(kRed);
    const Pixel green = pixelOf(kGreen);
    const Pixel blue = pixelOf(kBlue);
    const BmpFile::Palette colours{kRed, kGreen, kBlue};
    const Pixels expected{{red, green, blue}, {blue, blue, red}};
    const BmpFile::Indexes rows{{0, 1, 2}, {2, 2, 0}};
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(8, colours, rows).bytes()), expected);
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(4, colours, rows).bytes()), expected);
    EXPECT_EQ(pixelsLoaded(BmpFile::direct({{kRed, kGreen, kBlue}, {kBlue, kBlue, kRed}}).bytes()),
              expected);
    EXPECT_EQ(pixelsLoaded(BmpFile::indexed(1, {kRed, kGreen}, {{0, 1, 0}, {1, 1, 0}}).bytes()),
              (Pixels{{red, green, red}, {green, green, red}}));
    const std::string runs8("\x02\x02\x01\x00\x00\x00\x00\x03\x00\x01\x02\x00\x00\x01", 14);
    EXPECT_EQ(pixelsLoaded(BmpFile::inRuns(8, colours, 3, 2, runs8).bytes()), expected);
    const std::string runs4("\x02\x22\x01\x00\x00\x00\x00\x03\x01\x20\x00\x00\x01", 13);
    EXPECT_EQ(pixelsLoaded(BmpFile::inRuns(4, colours, 3, 2, runs4).bytes()), expected);
}
