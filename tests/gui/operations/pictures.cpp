#include "pictures.h"

namespace kite::testing {

namespace {

// What is inside the shadow.
screen::Picture insideOf(Widget control)
{
    EXPECT_TRUE(screen::waitUntilPainted(control));
    const int shadow = resource<Dimension>(control, XmNshadowThickness);
    const Rect rect = rectOf(control);
    return screen::grab(
        Rect{rect.x + shadow, rect.y + shadow, rect.width - 2 * shadow, rect.height - 2 * shadow});
}

}  // namespace

void buildPictured()
{
    guiImage(1, 0, 3, 0, 40, 1);
    guiImage(2, 0, 3, 60, 40, 0);
    guiButton(3, 4, 0, 60, "Text", 0);
}

screen::Colour patternAt(int x, int y)
{
    const auto channel = [](int number) { return static_cast<std::uint8_t>(number % 256); };
    return {channel(x * 37 + 5), channel(y * 53 + 9), channel((x + y) * 11)};
}

std::string patternFile(const std::string& name, int width, int height)
{
    BmpFile::Colours rows;
    for (int y = 0; y < height; ++y) {
        rows.emplace_back();
        for (int x = 0; x < width; ++x) {
            const screen::Colour colour = patternAt(x, y);
            rows.back().push_back({colour.red, colour.green, colour.blue});
        }
    }
    return HostDouble::instance().addFile(name, BmpFile::direct(rows).bytes()).string();
}

std::string holedFile(const std::string& name, int width, int height)
{
    const std::string onePixelAndTheEnd("\x01\x00\x00\x01", 4);
    return HostDouble::instance()
        .addFile(name, BmpFile::inRuns(8, {{255, 0, 0}}, width, height, onePixelAndTheEnd).bytes())
        .string();
}

screen::Colour backgroundOf(Widget control)
{
    return screen::colourOf(control, resource<Pixel>(control, XmNbackground));
}

void expectPattern(Widget control, int width, int height)
{
    const screen::Picture shown = insideOf(control);
    const screen::Colour background = backgroundOf(control);
    int wrong = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) {
            const bool isInPicture = x < width && y < height;
            if (shown.at(x, y) != (isInPicture ? patternAt(x, y) : background)) ++wrong;
        }
    EXPECT_EQ(wrong, 0) << "pixels of " << shown.width() << 'x' << shown.height();
}

void expectCleared(Widget control)
{
    const screen::Picture shown = insideOf(control);
    EXPECT_EQ(shown.count(backgroundOf(control)), shown.width() * shown.height());
}

}  // namespace kite::testing
