#include "images/bmp_rle.h"

#include <algorithm>

namespace kite::images::bmp {

namespace {

// The second byte of an escape; any other value is the length of an absolute run.
enum Escape { EndOfLine = 0, EndOfBitmap = 1, Delta = 2 };

// The place where the next pixel goes. It only moves to the right and upwards, so one row is enough; and
// it may leave the picture: what is drawn there is dropped, and decoding goes on. No file is long enough
// to overflow 64 bits.
class Pen {
public:
    Pen(const Header& header, Sink& sink)
        : sink_(sink), y_(header.height - 1), row_(static_cast<std::size_t>(header.width), kUndrawn)
    {
    }

    // A run of two values in turn.
    void draw(int count, int first, int second)
    {
        const std::int64_t width = std::ssize(row_);
        if (y_ >= 0 && x_ < width) {
            const auto begin = row_.begin() + x_;
            const auto end = begin + std::min<std::int64_t>(count, width - x_);
            std::fill(begin, end, static_cast<Index>(first));
            if (second != first)
                for (auto at = begin; end - at > 1; at += 2) at[1] = static_cast<Index>(second);
            isDrawn_ = true;
        }
        x_ += count;
    }

    void moveBy(int right, int up)
    {
        if (up > 0) finishRow();
        x_ += right;
        y_ -= up;
    }

    void startNextRow()
    {
        moveBy(0, 1);
        x_ = 0;
    }

    void finishRow()
    {
        if (!isDrawn_) return;
        sink_.row(static_cast<int>(y_), std::span<const Index>{row_});
        std::fill(row_.begin(), row_.end(), kUndrawn);
        isDrawn_ = false;
    }

private:
    Sink& sink_;
    std::int64_t x_ = 0;
    std::int64_t y_;
    std::vector<Index> row_;
    bool isDrawn_ = false;  // anything of the row
};

class RunDecoder {
public:
    RunDecoder(const Header& header, ByteSource& source, Sink& sink)
        : isNibbles_(header.compression == Compression::Rle4), source_(source), pen_(header, sink)
    {
    }

    bool decode()
    {
        for (;;) {
            const int count = source_.next();
            const int value = source_.next();
            if (source_.hasEnded()) return false;
            if (count > 0) {
                drawBoth(count, value);
            } else if (value == EndOfBitmap) {
                pen_.finishRow();
                return true;
            } else {
                follow(value);
            }
        }
    }

private:
    void drawBoth(int count, int value)
    {
        if (isNibbles_)
            pen_.draw(count, value >> 4, value & 0xF);
        else
            pen_.draw(count, value, value);
    }

    void follow(int escape)
    {
        if (escape == EndOfLine) {
            pen_.startNextRow();
        } else if (escape == Delta) {
            const int right = source_.next();
            const int up = source_.next();
            if (!source_.hasEnded()) pen_.moveBy(right, up);
        } else {
            drawAbsolute(escape);
        }
    }

    void drawAbsolute(int count)
    {
        const int perByte = isNibbles_ ? 2 : 1;
        for (int left = count; left > 0; left -= perByte) {
            const int value = source_.next();
            if (value == ByteSource::kEnd) return;
            drawBoth(std::min(left, perByte), value);
        }
        if (hasPadding(count)) source_.next();
    }

    // A nibble run of 4n + 3 pixels ends on a whole word and is padded nevertheless: intended, files of
    // this kind are written that way.
    bool hasPadding(int count) const { return count % (isNibbles_ ? 4 : 2) != 0; }

    bool isNibbles_;
    ByteSource& source_;
    Pen pen_;
};

}  // namespace

bool decodeRuns(const Header& header, ByteSource& source, Sink& sink)
{
    return RunDecoder{header, source, sink}.decode();
}

}  // namespace kite::images::bmp
