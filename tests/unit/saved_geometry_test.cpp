#include "frame/saved_geometry.h"

#include <gmock/gmock.h>

#include <climits>

using kite::settings::Geometry;
using namespace kite::savedGeometry;

namespace {

constexpr Size kScreen{1000, 800};
constexpr Geometry kCentred{275, 250, 450, 300};

struct Row {
    const char* what;
    Geometry saved;
    bool isKept;
};

constexpr Row kRows[] = {
    {"nothing saved", {-1, -1, -1, -1}, false},
    {"an ordinary place", {10, 20, 500, 400}, true},
    {"the left and top edge", {0, 0, 500, 400}, true},
    {"left of the screen", {-1, 0, 500, 400}, false},
    {"above the screen", {0, -1, 500, 400}, false},
    {"the least width", {10, 10, 300, 500}, true},
    {"narrower", {10, 10, 299, 500}, false},
    {"the least height", {10, 10, 500, 200}, true},
    {"lower", {10, 10, 500, 199}, false},
    {"up to the right edge", {500, 10, 500, 500}, true},
    {"past the right edge", {501, 10, 500, 500}, false},
    {"up to the bottom edge", {10, 300, 500, 500}, true},
    {"past the bottom edge", {10, 301, 500, 500}, false},
    {"the whole screen", {0, 0, 1000, 800}, true},
    {"wider than the screen", {0, 0, 1001, 800}, false},
    {"higher than the screen", {0, 0, 1000, 801}, false},
    {"a sum beyond int", {INT_MAX, 0, 300, 200}, false},
    {"a width beyond all", {1, 0, INT_MAX, 200}, false},
    {"a height beyond all", {0, 1, 300, INT_MAX}, false},
    {"the smallest ints", {INT_MIN, INT_MIN, INT_MIN, INT_MIN}, false},
};

}  // namespace

TEST(SavedGeometry, IsKeptOrDroppedAsAWhole)
{
    for (const Row& row : kRows)
        EXPECT_TRUE(toOpenWith(row.saved, kScreen) == (row.isKept ? row.saved : kCentred))
            << row.what;
}

TEST(SavedGeometry, CentresTheDefaultSizeOnAnyScreen)
{
    EXPECT_TRUE(toOpenWith({-1, -1, -1, -1}, {1280, 1024}) == (Geometry{415, 362, 450, 300}));
    EXPECT_TRUE(toOpenWith({-1, -1, -1, -1}, {451, 301}) == (Geometry{0, 0, 450, 300}));
    EXPECT_TRUE(toOpenWith({-1, -1, -1, -1}, {320, 200}) == (Geometry{-65, -50, 450, 300}));
}

TEST(Decoration, IsTakenOffWhenPlausible)
{
    struct {
        Position offset, expected;
    } const rows[] = {
        {{0, 0}, {100, 200}}, {{5, 25}, {95, 175}}, {{29, 69}, {71, 131}},
        {{30, 25}, {0, 0}},   {{5, 70}, {0, 0}},    {{-1, 25}, {0, 0}},
        {{5, -1}, {0, 0}},    {{35, 20}, {0, 0}},   {{INT_MAX, INT_MIN}, {0, 0}},
    };
    for (const auto& row : rows) {
        const Position position = withDecoration({100, 200}, row.offset);
        EXPECT_EQ(position.x, row.expected.x) << row.offset.x << "," << row.offset.y;
        EXPECT_EQ(position.y, row.expected.y) << row.offset.x << "," << row.offset.y;
    }
}
