#include "images/bmp_rle.h"

#include <algorithm>
#include <array>

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
        const std::span<Index> run = advance(count);
        std::fill(run.begin(), run.end(), static_cast<Index>(first));
        if (second != first)
            for (std::size_t i = 1; i < run.size(); i += 2) run[i] = static_cast<Index>(second);
    }

    void draw(std::span<const std::uint8_t> values)
    {
        const std::span<Index> run = advance(static_cast<int>(values.size()));
        std::copy_n(values.begin(), run.size(), run.begin());
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
    // What is in the picture of so many pixels from here on; goes behind them.
    std::span<Index> advance(int count)
    {
        const std::int64_t start = x_;
        x_ += count;
        const std::int64_t width = std::ssize(row_);
        if (y_ < 0 || start >= width) return {};
        isDrawn_ = true;
        const auto inside = std::min<std::int64_t>(count, width - start);
        return {row_.data() + start, static_cast<std::size_t>(inside)};
    }

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
        std::array<std::uint8_t, 255> buffer;  // an escape has no longer run
        const auto bytes = static_cast<std::size_t>(isNibbles_ ? (count + 1) / 2 : count);
        const std::span<std::uint8_t> values{buffer.data(), bytes};
        if (!source_.read(values)) return;
        if (isNibbles_)
            drawNibbles(values, count);
        else
            pen_.draw(values);
        if (hasPadding(count)) source_.next();
    }

    void drawNibbles(std::span<const std::uint8_t> values, int count)
    {
        for (const std::uint8_t value : values) {
            drawBoth(std::min(count, 2), value);
            count -= 2;
        }
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
