// toolbar_images.h: the picture of a toolbar button, as it is and greyed.

#pragma once

#include <Xm/Xm.h>

#include <string>
#include <utility>

namespace kite::commands {

inline constexpr int kImageSize = 21;  // pixels, both ways

// Owns a pixmap until it belongs to a button.
class OwnedPixmap {
public:
    OwnedPixmap(Display* display, Pixmap pixmap) : display_(display), pixmap_(pixmap) {}
    OwnedPixmap(OwnedPixmap&& other) noexcept
        : display_(other.display_), pixmap_(std::exchange(other.pixmap_, None))
    {
    }
    ~OwnedPixmap()
    {
        if (pixmap_ != None) XFreePixmap(display_, pixmap_);
    }

    OwnedPixmap(const OwnedPixmap&) = delete;
    OwnedPixmap& operator=(const OwnedPixmap&) = delete;
    OwnedPixmap& operator=(OwnedPixmap&&) = delete;

    Pixmap get() const { return pixmap_; }
    Pixmap release() { return std::exchange(pixmap_, None); }

private:
    Display* display_;
    Pixmap pixmap_;
};

// The file of an image that the host names.
std::string imagePath(const char* image);

// A copy of the image in which every other pixel is the background, like a checkerboard.
OwnedPixmap greyed(Screen* screen, Pixmap image, Pixel background);

}  // namespace kite::commands
