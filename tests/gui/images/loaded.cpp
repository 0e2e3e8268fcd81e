#include "loaded.h"

#include <X11/Xutil.h>

#include <memory>
#include <random>

#include "gui_test.h"

namespace kite::testing {

namespace {

struct DestroyImage {
    void operator()(XImage* image) const { XDestroyImage(image); }
};

Rect rectOf(Pixmap pixmap, unsigned& depth)
{
    Window root = 0;
    int x = 0, y = 0;
    unsigned width = 0, height = 0, border = 0;
    XGetGeometry(toolkit::display(), pixmap, &root, &x, &y, &width, &height, &border, &depth);
    return {0, 0, static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace

Screen* defaultScreen()
{
    return XDefaultScreenOfDisplay(toolkit::display());
}

unsigned depthOf(Pixmap pixmap)
{
    unsigned depth = 0;
    rectOf(pixmap, depth);
    return depth;
}

Pixels pixelsOf(Pixmap pixmap)
{
    unsigned depth = 0;
    const Rect rect = rectOf(pixmap, depth);
    const std::unique_ptr<XImage, DestroyImage> image{
        XGetImage(toolkit::display(), pixmap, 0, 0, static_cast<unsigned>(rect.width),
                  static_cast<unsigned>(rect.height), AllPlanes, ZPixmap)};
    Pixels rows(static_cast<std::size_t>(image ? rect.height : 0));
    for (int y = 0; y < std::ssize(rows); ++y)
        for (int x = 0; x < rect.width; ++x)
            rows[static_cast<std::size_t>(y)].push_back(XGetPixel(image.get(), x, y));
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
    Pixels pixels = pixelsOf(picture.pixmap);
    XFreePixmap(toolkit::display(), picture.pixmap);
    return pixels;
}

Pixel serverPixel(BmpFile::Colour colour)
{
    XColor wanted{};
    wanted.red = static_cast<unsigned short>(colour.red << 8);
    wanted.green = static_cast<unsigned short>(colour.green << 8);
    wanted.blue = static_cast<unsigned short>(colour.blue << 8);
    EXPECT_TRUE(XAllocColor(toolkit::display(), DefaultColormapOfScreen(defaultScreen()), &wanted));
    return wanted.pixel;
}

BmpFile::Colours noise(int width, int height)
{
    std::minstd_rand random{7};  // NOLINT: the same every time is what is wanted
    const auto component = [&] { return static_cast<std::uint8_t>(random() >> 8); };
    BmpFile::Colours rows(static_cast<std::size_t>(height));
    for (auto& row : rows)
        for (int x = 0; x < width; ++x) row.push_back({component(), component(), component()});
    return rows;
}

BmpFile::Palette manyColours()
{
    return noise(256, 1).front();
}

}  // namespace kite::testing
