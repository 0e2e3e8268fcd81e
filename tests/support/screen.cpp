#include "screen.h"

#include <X11/Xutil.h>

#include <algorithm>
#include <bit>
#include <map>
#include <memory>

#include "connection.h"
#include "pump.h"
#include "widgets.h"

namespace kite::testing::screen {

namespace {

struct DestroyImage {
    void operator()(XImage* image) const { XDestroyImage(image); }
};
using Image = std::unique_ptr<XImage, DestroyImage>;

Rect screenRect()
{
    const int number = DefaultScreen(connection());
    return {0, 0, DisplayWidth(connection(), number), DisplayHeight(connection(), number)};
}

Rect cutToScreen(const Rect& rect)
{
    const Rect whole = screenRect();
    const int x = std::max(rect.x, 0);
    const int y = std::max(rect.y, 0);
    return {x, y, std::max(std::min(rect.right(), whole.right()) - x, 0),
            std::max(std::min(rect.bottom(), whole.bottom()) - y, 0)};
}

std::uint8_t component(unsigned long pixel, unsigned long mask)
{
    const unsigned long most = mask >> std::countr_zero(mask);
    return static_cast<std::uint8_t>(((pixel & mask) >> std::countr_zero(mask)) * 255 / most);
}

Colour toColour(const XColor& colour)
{
    const auto high = [](unsigned short value) { return static_cast<std::uint8_t>(value >> 8); };
    return {high(colour.red), high(colour.green), high(colour.blue)};
}

// From the visual's masks; screens with a colour table are asked, once for each of its few pixels.
class PixelColours {
public:
    Colour of(unsigned long pixel)
    {
        if (visual_->red_mask)
            return {component(pixel, visual_->red_mask), component(pixel, visual_->green_mask),
                    component(pixel, visual_->blue_mask)};
        const auto found = known_.find(pixel);
        if (found != known_.end()) return found->second;
        XColor colour{};
        colour.pixel = pixel;
        XQueryColor(connection(), DefaultColormap(connection(), DefaultScreen(connection())),
                    &colour);
        return known_[pixel] = toColour(colour);
    }

private:
    Visual* visual_ = DefaultVisual(connection(), DefaultScreen(connection()));
    std::map<unsigned long, Colour> known_;
};

}  // namespace

Picture grab(const Rect& wanted)
{
    const Rect rect = cutToScreen(wanted);
    if (rect.width == 0 || rect.height == 0) return {};
    const Image image{XGetImage(connection(), rootWindow(), rect.x, rect.y,
                                static_cast<unsigned>(rect.width),
                                static_cast<unsigned>(rect.height), AllPlanes, ZPixmap)};
    if (!image) return {};
    Picture picture{rect.width, rect.height};
    PixelColours colours;
    for (int y = 0; y < rect.height; ++y)
        for (int x = 0; x < rect.width; ++x)
            picture.set(x, y, colours.of(XGetPixel(image.get(), x, y)));
    return picture;
}

Picture grab()
{
    return grab(screenRect());
}

Picture grab(Widget widget)
{
    return grab(rectOf(widget));
}

Colour colourAt(Point point)
{
    const Picture picture = grab(Rect{point.x, point.y, 1, 1});
    return picture.width() ? picture.at(0, 0) : Colour{};
}

Colour colourNamed(const std::string& name)
{
    XColor colour{};
    XParseColor(connection(), DefaultColormap(connection(), DefaultScreen(connection())),
                name.c_str(), &colour);
    return toColour(colour);
}

Colour colourOf(Widget widget, Pixel pixel)
{
    XColor colour{};
    colour.pixel = pixel;
    XQueryColor(XtDisplayOfObject(widget), resource<Colormap>(shellOf(widget), XmNcolormap),
                &colour);
    return toColour(colour);
}

bool waitUntilPainted(Widget widget)
{
    Picture before;
    return pumpUntil([&] {
        if (!isShown(widget)) return false;
        settle();
        Picture now = grab(widget);
        const bool isQuiet = now.width() > 0 && now == before;
        before = std::move(now);
        return isQuiet;
    });
}

}  // namespace kite::testing::screen
