// picture_upload.h: rows of pixels on their way into a pixmap, in bands of bounded size.

#pragma once

#include <X11/Xlib.h>

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace kite::images {

class PictureUpload {
public:
    PictureUpload(Screen* screen, Pixmap pixmap, GC context, int width, int height);

    // Rows come from the bottom up. Between two there may be a gap.
    void row(int y, std::span<const std::uint32_t> pixels);

    // Sends what is left.
    void finish();

private:
    struct DestroyImage {
        void operator()(XImage* image) const;
    };

    char* slot(int row) const;
    void pack(std::span<const std::uint32_t> pixels, int row);

    Display* display_;
    Pixmap pixmap_;
    GC context_;
    std::unique_ptr<XImage, DestroyImage> image_;
    std::vector<char> bytes_;  // of the image
    int top_ = 0;              // row of the picture that came last
    int count_ = 0;            // rows in the band; they fill it from its bottom
};

}  // namespace kite::images
