// round_trips_test.cpp: what pictures cost on a display that is far away.

#include "round_trips.h"

#include "gui_test.h"
#include "loaded.h"

using namespace kite::testing;

namespace {

constexpr int kPixmap = 1;  // whether the server could make it
constexpr int kProbes = 3;  // whether it computes colours as expected: once for a display

BmpFile indexedNoise(int width, int height)
{
    BmpFile::Indexes rows(static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            rows[static_cast<std::size_t>(y)].push_back((x + 5 * y) & 0xFF);
    return BmpFile::indexed(8, manyColours(), rows);
}

}  // namespace

GUI_TEST(PictureTraffic, DoesNotDependOnSizeAndColours)
{
    EXPECT_EQ(roundTripsToLoad(BmpFile::direct(noise(1, 1))), kPixmap + kProbes);
    EXPECT_EQ(roundTripsToLoad(BmpFile::direct(noise(1, 1))), kPixmap);
    EXPECT_EQ(roundTripsToLoad(BmpFile::direct(noise(600, 400))), kPixmap);
    EXPECT_EQ(roundTripsToLoad(indexedNoise(1, 1)), kPixmap);
    EXPECT_EQ(roundTripsToLoad(indexedNoise(600, 400)), kPixmap);
}

GUI_TEST(PictureTraffic, IsNoneForWhatIsNoPicture)
{
    BmpFile refused = BmpFile::direct(noise(9, 9));
    refused.data.pop_back();
    EXPECT_EQ(roundTripsDuring(toolkit::display(), [&] { loadBytes(refused.bytes()); }), 0);
}
