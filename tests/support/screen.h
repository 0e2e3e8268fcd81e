// screen.h: what the screen shows, as the server has it.
//
//     EXPECT_EQ(screen::colourAt(rectOf(label).centre()), screen::colourNamed("white"));
//     screen::grab(rectOf(button)).savePng(path);

#pragma once

#include <X11/Intrinsic.h>

#include <compare>
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

#include "geometry.h"

namespace kite::testing::screen {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    auto operator<=>(const Colour&) const = default;
};

std::ostream& operator<<(std::ostream& out, Colour colour);

class Picture {
public:
    Picture() = default;
    Picture(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    Colour at(int x, int y) const { return pixels_[index(x, y)]; }
    void set(int x, int y, Colour colour) { pixels_[index(x, y)] = colour; }

    int count(Colour colour) const;
    std::vector<Colour> colours() const;  // each once, the most frequent first
    bool operator==(const Picture&) const = default;

    bool savePng(const std::filesystem::path& path) const;

private:
    std::size_t index(int x, int y) const { return static_cast<std::size_t>(y * width_ + x); }

    int width_ = 0;
    int height_ = 0;
    std::vector<Colour> pixels_;
};

// Cut to what lies on the screen. Whatever covers a widget is in the picture.
Picture grab();
Picture grab(const Rect& rect);
Picture grab(Widget widget);

Colour colourAt(Point point);
Colour colourNamed(const std::string& name);  // X colour names, "#rrggbb"
Colour colourOf(Widget widget, Pixel pixel);  // of a resource such as XmNbackground

// Waits until the widget is shown and has stopped changing.
bool waitUntilPainted(Widget widget);

}  // namespace kite::testing::screen
