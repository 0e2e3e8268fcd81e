// large_test.cpp: pictures that are larger than a request, than the server's memory, or than X allows.

#include <sys/resource.h>
#include <sys/socket.h>

#include "gui_test.h"
#include "loaded.h"
#include "server_resources.h"

using namespace kite::testing;
using kite::images::Picture;

namespace {

// Of the server of this test, until its end.
void limitServerMemory()
{
    ucred server{};
    socklen_t size = sizeof server;
    ASSERT_EQ(
        getsockopt(ConnectionNumber(toolkit::display()), SOL_SOCKET, SO_PEERCRED, &server, &size),
        0);
    constexpr rlim_t kBytes = 1 << 30;
    const rlimit limit{kBytes, kBytes};
    ASSERT_EQ(prlimit(server.pid, RLIMIT_AS, &limit, nullptr), 0);
}

}  // namespace

// More than a request may carry, in many bands, and each pixel tells its place.
GUI_TEST(LargePictures, ArriveWhole)
{
    constexpr int kWidth = 701;
    constexpr int kHeight = 1503;
    ASSERT_LT(XMaxRequestSize(toolkit::display()) * 4, kWidth * kHeight * 4);
    const auto colourAt = [](std::size_t x, std::size_t y) {
        return BmpFile::Colour{static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y),
                               static_cast<std::uint8_t>((y >> 8) * 16 + (x >> 8))};
    };
    BmpFile::Colours rows(kHeight);
    for (std::size_t y = 0; y < kHeight; ++y)
        for (std::size_t x = 0; x < kWidth; ++x) rows[y].push_back(colourAt(x, y));
    const Pixels pixels = pixelsLoaded(BmpFile::direct(rows).bytes());
    ASSERT_EQ(pixels.size(), rows.size());
    int wrong = 0;
    for (std::size_t y = 0; y < kHeight; ++y)
        for (std::size_t x = 0; x < kWidth; ++x) {
            const auto [red, green, blue] = rows[y][x];
            const auto expected = static_cast<Pixel>(red << 16 | green << 8 | blue);
            wrong += pixels[y][x] == expected ? 0 : 1;
        }
    EXPECT_EQ(wrong, 0);
}

// One row of the greatest width is more than a band holds otherwise.
GUI_TEST(LargePictures, MayHaveTheGreatestSides)
{
    const auto sides = [](const Picture& picture) {
        if (picture) XFreePixmap(toolkit::display(), picture.pixmap);
        return std::pair{picture.width, picture.height};
    };
    const BmpFile::Palette palette{kRed};
    const std::string runs("\1\0\0\1", 4);
    EXPECT_EQ(sides(loadBytes(BmpFile::inRuns(8, palette, 32767, 1, runs).bytes())),
              std::pair(32767, 1));
    EXPECT_EQ(sides(loadBytes(BmpFile::inRuns(8, palette, 1, 32767, runs).bytes())),
              std::pair(1, 32767));
    EXPECT_EQ(sides(loadBytes(BmpFile::inRuns(8, palette, 32768, 1, runs).bytes())),
              std::pair(0, 0));
    EXPECT_EQ(sides(loadBytes(BmpFile::inRuns(8, palette, 1, 32768, runs).bytes())),
              std::pair(0, 0));
}

// What the server has is enough for small pictures only. The harness takes any X error for a failure.
GUI_TEST(LargePictures, AreRefusedWhenTheServerHasNoMemory)
{
    Display* const display = toolkit::display();
    pixelsLoaded(BmpFile::direct(noise(1, 1)).bytes());
    const auto before = serverResources(display);
    const std::string runs("\1\0\0\1", 4);
    limitServerMemory();
    const Picture picture = loadBytes(BmpFile::inRuns(8, {kRed}, 32767, 32767, runs).bytes());
    EXPECT_FALSE(picture);
    EXPECT_EQ(picture.width, 0);
    EXPECT_EQ(picture.height, 0);
    EXPECT_EQ(serverResources(display), before);
    EXPECT_FALSE(pixelsLoaded(BmpFile::direct(noise(2, 2)).bytes()).empty());
}
