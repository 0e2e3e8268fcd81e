// image_loader.h: pictures from files, as pixmaps of the default depth.

#pragma once

#include <X11/Intrinsic.h>

#include <string>

namespace kite::images {

// What stands for a picture that could not be loaded, wherever a pixmap id is passed on.
inline constexpr Pixmap kNoPixmap = 2;

struct Picture {
    Pixmap pixmap = kNoPixmap;  // the caller's, to free
    int width = 0;
    int height = 0;

    explicit operator bool() const { return pixmap != kNoPixmap; }
};

// When the server is asked whether it could make the pixmap. Later: by the caller, who holds an XErrorTrap
// around the loading and everything else that needs an answer.
enum class Check { Now, Later };

// Loads the file for the screen. What the picture does not draw keeps the undrawn pixel.
Picture load(Screen* screen, const std::string& path, Pixel undrawn, Check check = Check::Now);

// What shows where a picture has the grey 191, 191, 191, on displays that have exactly that grey: the
// background of the menu bar. Without one the grey is a colour like others.
using BackgroundOf = Pixel (*)();
void setTransparentGrey(BackgroundOf menuBarBackground);

}  // namespace kite::images
