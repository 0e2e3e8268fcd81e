#include "images/picture_upload.h"

#include <X11/Xutil.h>

#include <algorithm>
#include <bit>
#include <cstring>

namespace kite::images {

namespace {

constexpr int kBandBytes = 256 * 1024;  // but at least one row

int bandRows(const XImage& image, int height)
{
    return std::clamp(kBandBytes / image.bytes_per_line, 1, height);
}

bool hasOurByteOrder(const XImage& image)
{
    constexpr int kOurs = std::endian::native == std::endian::little ? LSBFirst : MSBFirst;
    return image.byte_order == kOurs;
}

template <typename Word>
void packWords(std::span<const std::uint32_t> pixels, char* to)
{
    for (const std::uint32_t pixel : pixels) {
        const Word word = static_cast<Word>(pixel);
        std::memcpy(to, &word, sizeof word);
        to += sizeof word;
    }
}

}  // namespace

void PictureUpload::DestroyImage::operator()(XImage* image) const
{
    image->data = nullptr;  // the bytes are not its own
    XDestroyImage(image);
}

PictureUpload::PictureUpload(Screen* screen, Pixmap pixmap, GC context, int width, int height)
    : display_(DisplayOfScreen(screen)), pixmap_(pixmap), context_(context),
      image_(XCreateImage(display_, DefaultVisualOfScreen(screen),
                          static_cast<unsigned>(DefaultDepthOfScreen(screen)), ZPixmap, 0, nullptr,
                          static_cast<unsigned>(width), static_cast<unsigned>(height),
                          BitmapPad(display_), 0))
{
    image_->height = bandRows(*image_, height);
    bytes_.resize(static_cast<std::size_t>(image_->height) *
                  static_cast<std::size_t>(image_->bytes_per_line));
    image_->data = bytes_.data();
}

char* PictureUpload::slot(int row) const
{
    return image_->data + static_cast<std::ptrdiff_t>(row) * image_->bytes_per_line;
}

void PictureUpload::pack(std::span<const std::uint32_t> pixels, int row)
{
    const int bits = image_->bits_per_pixel;
    if (bits == 8) {
        packWords<std::uint8_t>(pixels, slot(row));
    } else if (bits == 16 && hasOurByteOrder(*image_)) {
        packWords<std::uint16_t>(pixels, slot(row));
    } else if (bits == 32 && hasOurByteOrder(*image_)) {
        std::memcpy(slot(row), pixels.data(), pixels.size_bytes());
    } else {
        for (std::size_t x = 0; x < pixels.size(); ++x)
            XPutPixel(image_.get(), static_cast<int>(x), row, pixels[x]);
    }
}

void PictureUpload::row(int y, std::span<const std::uint32_t> pixels)
{
    if (count_ == image_->height || (count_ > 0 && y != top_ - 1)) finish();
    ++count_;
    top_ = y;
    pack(pixels, image_->height - count_);
}

void PictureUpload::finish()
{
    if (count_ == 0) return;
    XPutImage(display_, pixmap_, context_, image_.get(), 0, image_->height - count_, 0, top_,
              static_cast<unsigned>(image_->width), static_cast<unsigned>(count_));
    count_ = 0;
}

}  // namespace kite::images
