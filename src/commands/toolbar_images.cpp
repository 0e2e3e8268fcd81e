#include "commands/toolbar_images.h"

#include <array>

#include "commands/command_room.h"
#include "frame/host_services.h"
#include "toolkit/host_buffer.h"
#include "toolkit/screen_pen.h"

namespace kite::commands {

namespace {

constexpr char kDirectory[] = "tbbb/";
constexpr char kSuffix[] = ".bmp";

// Row y loses the pixels at y mod 2, y mod 2 + 2, and so on: the corners are among them.
constexpr int kPointCount = (kImageSize * kImageSize + 1) / 2;

using Points = std::array<XPoint, kPointCount>;

Points checkerboard()
{
    Points points{};
    auto* next = points.begin();
    for (int y = 0; y < kImageSize; ++y)
        for (int x = y % 2; x < kImageSize; x += 2)
            *next++ = {static_cast<short>(x), static_cast<short>(y)};
    return points;
}

}  // namespace

// The application directory is asked for once: it stays where it is.
std::string imagePath(const char* image)
{
    std::string& directory = room().imageDirectory;
    if (directory.empty()) directory = std::string{orEmpty(kxAppDir())}.append(kDirectory);
    return directory + image + kSuffix;
}

OwnedPixmap greyed(Screen* screen, Pixmap image, Pixel background)
{
    static const Points points = checkerboard();
    Display* const display = DisplayOfScreen(screen);
    const auto depth = static_cast<unsigned int>(DefaultDepthOfScreen(screen));
    const Pixmap copy =
        XCreatePixmap(display, RootWindowOfScreen(screen), kImageSize, kImageSize, depth);
    GC const pen = screenPen(screen, background);
    XCopyArea(display, image, copy, pen, 0, 0, kImageSize, kImageSize, 0, 0);
    XDrawPoints(display, copy, pen, const_cast<XPoint*>(points.data()), kPointCount,
                CoordModeOrigin);
    return {screen, copy};
}

}  // namespace kite::commands
