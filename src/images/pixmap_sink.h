// pixmap_sink.h: the pixmap that a picture is decoded into.

#pragma once

#include <X11/Xlib.h>

#include <optional>
#include <vector>

#include "images/bmp.h"
#include "images/image_loader.h"
#include "images/image_palette.h"
#include "images/picture_upload.h"
#include "images/pixel_rows.h"

namespace kite::images {

// Frees what it has made, unless it was taken.
class PixmapSink final : public bmp::Sink {
public:
    PixmapSink(Screen* screen, Pixel undrawn, DirectPixels::Background transparentGrey,
               Check check);
    ~PixmapSink() override;
    PixmapSink(const PixmapSink&) = delete;
    PixmapSink& operator=(const PixmapSink&) = delete;

    bool begin(const bmp::Header& header, const std::vector<Rgb>& palette) override;
    void row(int y, std::span<const bmp::Index> indexes) override;
    void row(int y, std::span<const bmp::Bgr> pixels) override;

    // The finished picture, which is the caller's from now on.
    Picture take();

private:
    bool createPixmap();
    void fillFrom(int y);
    void send(int y);
    Colormap colormap() const { return DefaultColormapOfScreen(screen_); }

    Screen* screen_;
    Display* display_;
    std::uint32_t undrawn_;
    Check check_;
    PaletteDisplay paletteDisplay_;
    IndexedPixels indexed_;
    DirectPixels direct_;
    Picture picture_;
    std::vector<std::uint32_t> row_;
    int undrawnRows_ = 0;  // at the top: those below have come or are filled
    std::optional<PictureUpload> upload_;
};

}  // namespace kite::images
