// pixmaps.h: pixmaps that the toolkit's widgets show, and who owns them.

#pragma once

#include <X11/Intrinsic.h>

#include <utility>

namespace kite {

// Frees the pixmap, and what the toolkit has noted about it: it notes the size of every pixmap that a widget
// shows, by the pixmap's id, for good.
void freePixmap(Screen* screen, Pixmap pixmap);

// Returns when the server has answered for the pixmap: if it could not make it, an XErrorTrap has caught that
// by then. The toolkit notes the answer, and need not ask when a widget shows the pixmap.
void awaitPixmap(Screen* screen, Pixmap pixmap);

class OwnedPixmap {
public:
    OwnedPixmap(Screen* screen, Pixmap pixmap) : screen_(screen), pixmap_(pixmap) {}
    OwnedPixmap(OwnedPixmap&& other) noexcept : screen_(other.screen_), pixmap_(other.release()) {}
    ~OwnedPixmap()
    {
        if (pixmap_ != None) freePixmap(screen_, pixmap_);
    }

    OwnedPixmap(const OwnedPixmap&) = delete;
    OwnedPixmap& operator=(const OwnedPixmap&) = delete;
    OwnedPixmap& operator=(OwnedPixmap&& other) noexcept
    {
        std::swap(screen_, other.screen_);
        std::swap(pixmap_, other.pixmap_);
        return *this;
    }

    Pixmap get() const { return pixmap_; }
    Pixmap release() { return std::exchange(pixmap_, None); }

private:
    Screen* screen_;
    Pixmap pixmap_;
};

// Frees the pixmap when the widget is destroyed: the toolkit's widgets show pixmaps without owning them.
void freeWithWidget(Widget widget, Pixmap pixmap);

}  // namespace kite
