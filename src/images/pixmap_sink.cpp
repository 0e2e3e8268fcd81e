#include "images/pixmap_sink.h"

#include <utility>

#include "images/display_colours.h"
#include "toolkit/x_error_trap.h"

namespace kite::images {

PixmapSink::PixmapSink(Screen* screen, Pixel undrawn, DirectPixels::Background transparentGrey)
    : screen_(screen), display_(DisplayOfScreen(screen)),
      undrawn_(static_cast<std::uint32_t>(undrawn)), paletteDisplay_(display_),
      indexed_(loadingPalette(), undrawn_),
      direct_([this](Rgb wanted) { return allocateColour(display_, colormap(), wanted); },
              std::move(transparentGrey), undrawn_)
{
}

PixmapSink::~PixmapSink()
{
    if (context_) XFreeGC(display_, context_);
    if (picture_) XFreePixmap(display_, picture_.pixmap);
}

bool PixmapSink::begin(const bmp::Header& header, const std::vector<Rgb>& palette)
{
    picture_.width = header.width;
    picture_.height = header.height;
    if (!createPixmap()) return false;
    createContext();
    if (header.isInRuns()) fill();  // other pictures have all their rows
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
    upload_.emplace(screen_, picture_.pixmap, context_, header.width, header.height);
    return true;
}

// The server may have no memory for it.
bool PixmapSink::createPixmap()
{
    const XErrorTrap trap{display_};
    const Pixmap pixmap =
        XCreatePixmap(display_, RootWindowOfScreen(screen_), static_cast<unsigned>(picture_.width),
                      static_cast<unsigned>(picture_.height),
                      static_cast<unsigned>(DefaultDepthOfScreen(screen_)));
    if (trap.hasCaught()) return false;
    if (pixmap == kNoPixmap) {  // an id like others, were it not for what it says to our callers
        XFreePixmap(display_, pixmap);
        return false;
    }
    picture_.pixmap = pixmap;
    return true;
}

void PixmapSink::createContext()
{
    XGCValues values{};
    values.foreground = undrawn_;
    values.background = undrawn_;
    context_ = XCreateGC(display_, picture_.pixmap, GCForeground | GCBackground, &values);
}

void PixmapSink::fill()
{
    XFillRectangle(display_, picture_.pixmap, context_, 0, 0, static_cast<unsigned>(picture_.width),
                   static_cast<unsigned>(picture_.height));
}

void PixmapSink::row(int y, std::span<const bmp::Index> indexes)
{
    indexed_.convert(indexes, row_);
    upload_->row(y, row_);
}

void PixmapSink::row(int y, std::span<const bmp::Bgr> pixels)
{
    direct_.convert(pixels, row_);
    upload_->row(y, row_);
}

Picture PixmapSink::take()
{
    upload_->finish();
    return std::exchange(picture_, {});
}

}  // namespace kite::images
