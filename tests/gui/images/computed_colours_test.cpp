// computed_colours_test.cpp: colours that are computed are those that the server gives.

#include "gui_test.h"
#include "images/display_colours.h"
#include "loaded.h"

using namespace kite;
using namespace kite::testing;
using images::AllocatedColour;
using images::Rgb;

namespace {

AllocatedColour fromServer(Rgb wanted)
{
    XColor colour{};
    colour.red = images::wide(wanted.red);
    colour.green = images::wide(wanted.green);
    colour.blue = images::wide(wanted.blue);
    EXPECT_TRUE(XAllocColor(toolkit::display(), DefaultColormapOfScreen(defaultScreen()), &colour));
    return {static_cast<std::uint32_t>(colour.pixel), colour.red, colour.green, colour.blue};
}

// All greys, all values of each component, and many others.
std::vector<Rgb> colours()
{
    std::vector<Rgb> all;
    for (int i = 0; i < 256; ++i) {
        const auto value = static_cast<std::uint8_t>(i);
        all.insert(all.end(), {{value, value, value}, {value, 0, 0}, {0, value, 0}, {0, 0, value}});
    }
    const BmpFile::Colours others = noise(3000, 1);
    for (const BmpFile::Colour colour : others.front())
        all.push_back({colour.red, colour.green, colour.blue});
    return all;
}

}  // namespace

GUI_TEST(ComputedColours, AreTheServers)
{
    const images::TrueColour* const computed =
        images::computedColours(toolkit::display(), DefaultColormapOfScreen(defaultScreen()));
    ASSERT_NE(computed, nullptr);
    int wrong = 0;
    for (const Rgb colour : colours()) {
        const AllocatedColour given = fromServer(colour);
        if (computed->allocate(colour) == given &&
            computed->pixel(colour.red, colour.green, colour.blue) == given.pixel)
            continue;
        ++wrong;
        ADD_FAILURE() << int{colour.red} << ", " << int{colour.green} << ", " << int{colour.blue};
        if (wrong == 5) return;
    }
}
