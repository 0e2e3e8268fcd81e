#include "images/pixmap_sink.h"

#include <utility>

#include "images/display_colours.h"
#include "toolkit/pixmaps.h"
#include "toolkit/screen_pen.h"
#include "toolkit/x_error_trap.h"

namespace kite::images {

PixmapSink::PixmapSink(Screen* screen, Pixel undrawn, DirectPixels::Background transparentGrey,
                       Check check)
    : screen_(screen), display_(DisplayOfScreen(screen)),
      undrawn_(static_cast<std::uint32_t>(undrawn)), check_(check), paletteDisplay_(display_),
      indexed_(loadingPalette(), undrawn_),
      direct_([this](Rgb wanted) { return allocateColour(display_, colormap(), wanted); },
              transparentGrey, undrawn_)
{
}

PixmapSink::~PixmapSink()
{
    if (picture_) freePixmap(screen_, picture_.pixmap);
}

bool PixmapSink::begin(const bmp::Header& header, const std::vector<Rgb>& palette)
{
    picture_.width = header.width;
    picture_.height = header.height;
    if (!createPixmap()) return false;
    undrawnRows_ = header.height;
    if (header.isIndexed()) {
        loadingPalette().reset(colormap());
        for (int index = 0; index < std::ssize(palette); ++index) {
            const Rgb colour = palette[static_cast<std::size_t>(index)];
            loadingPalette().set(index, colour.red, colour.green, colour.blue);
        }
    } else {
        direct_.useComputed(computedColours(display_, colormap()));
    }
    row_.resize(static_cast<std::size_t>(header.width));
    upload_.emplace(screen_, picture_.pixmap, screenPen(screen_, undrawn_), header.width,
                    header.height);
    return true;
}

// The server may have no memory for it.
bool PixmapSink::createPixmap()
{
    std::optional<XErrorTrap> trap;
    if (check_ == Check::Now) trap.emplace(display_);
    OwnedPixmap pixmap{screen_,
                       XCreatePixmap(display_, RootWindowOfScreen(screen_),
                                     static_cast<unsigned>(picture_.width),
                                     static_cast<unsigned>(picture_.height),
                                     static_cast<unsigned>(DefaultDepthOfScreen(screen_)))};
    if (trap) awaitPixmap(screen_, pixmap.get());
    if (trap && trap->hasCaught()) return false;
    // An id like others, were it not for what it says to our callers.
    if (pixmap.get() == kNoPixmap) return false;
    picture_.pixmap = pixmap.release();
    return true;
}

// Rows that do not come, from the given one down to the latest one that did.
void PixmapSink::fillFrom(int y)
{
    if (y < undrawnRows_)
        XFillRectangle(display_, picture_.pixmap, screenPen(screen_, undrawn_), 0, y,
                       static_cast<unsigned>(picture_.width),
                       static_cast<unsigned>(undrawnRows_ - y));
    undrawnRows_ = y;
}

void PixmapSink::send(int y)
{
    fillFrom(y + 1);
    undrawnRows_ = y;
    upload_->row(y, row_);
}

void PixmapSink::row(int y, std::span<const bmp::Index> indexes)
{
    indexed_.convert(indexes, row_);
    send(y);
}

void PixmapSink::row(int y, std::span<const bmp::Bgr> pixels)
{
    direct_.convert(pixels, row_);
    send(y);
}

Picture PixmapSink::take()
{
    fillFrom(0);
    upload_->finish();
    return std::exchange(picture_, {});
}

}  // namespace kite::images
