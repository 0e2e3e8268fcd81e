#include "loaded.h"

#include <X11/Xutil.h>

#include <memory>

#include "gui_test.h"

namespace kite::testing {

namespace {

struct DestroyImage {
    void operator()(XImage* image) const { XDestroyImage(image); }
};

}  // namespace

Screen* defaultScreen()
{
    return XDefaultScreenOfDisplay(toolkit::display());
}

Pixels pixelsOf(const images::Picture& picture)
{
    Pixels rows;
    const std::unique_ptr<XImage, DestroyImage> image{
        XGetImage(toolkit::display(), picture.pixmap, 0, 0, static_cast<unsigned>(picture.width),
                  static_cast<unsigned>(picture.height), AllPlanes, ZPixmap)};
    for (int y = 0; image && y < picture.height; ++y) {
        rows.emplace_back();
        for (int x = 0; x < picture.width; ++x) rows.back().push_back(XGetPixel(image.get(), x, y));
    }
    return rows;
}

images::Picture loadBytes(const std::string& bytes, Pixel undrawn, const std::string& name)
{
    return images::load(defaultScreen(), HostDouble::instance().addFile(name, bytes), undrawn);
}

Pixels pixelsLoaded(const std::string& bytes, Pixel undrawn)
{
    const images::Picture picture = loadBytes(bytes, undrawn);
    if (!picture) return {};
    const Pixels pixels = pixelsOf(picture);
    XFreePixmap(toolkit::display(), picture.pixmap);
    return pixels;
}

Pixel serverPixel(int red, int green, int blue)
{
    XColor colour{};
    colour.red = static_cast<unsigned short>(red << 8);
    colour.green = static_cast<unsigned short>(green << 8);
    colour.blue = static_cast<unsigned short>(blue << 8);
    EXPECT_TRUE(XAllocColor(toolkit::display(), DefaultColormapOfScreen(defaultScreen()), &colour));
    return colour.pixel;
}

}  // namespace kite::testing
