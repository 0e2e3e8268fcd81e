// picture.cpp: pictures in memory, and as PNG files.

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <map>
#include <ostream>

#include "process.h"
#include "screen.h"

namespace kite::testing::screen {

namespace {

void writePpm(std::ostream& out, const Picture& picture)
{
    std::string bytes;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Colour colour = picture.at(x, y);
            for (const std::uint8_t part : {colour.red, colour.green, colour.blue})
                bytes += static_cast<char>(part);
        }
    }
    out << "P6\n" << picture.width() << ' ' << picture.height() << "\n255\n" << bytes;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, Colour colour)
{
    const auto flags = out.flags();
    out << '#' << std::hex << std::setfill('0');
    for (const int part : {colour.red, colour.green, colour.blue}) out << std::setw(2) << part;
    out.flags(flags);
    return out;
}

Picture::Picture(int width, int height)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height))
{
}

int Picture::count(Colour colour) const
{
    return static_cast<int>(std::ranges::count(pixels_, colour));
}

std::vector<Colour> Picture::colours() const
{
    std::map<Colour, int> counts;
    for (const Colour colour : pixels_) ++counts[colour];
    std::vector<Colour> colours;
    for (const auto& [colour, times] : counts) colours.push_back(colour);
    std::ranges::sort(colours, std::greater{}, [&](Colour colour) { return counts[colour]; });
    return colours;
}

bool Picture::savePng(const std::filesystem::path& path) const
{
    if (width_ == 0 || height_ == 0) return false;
    const std::filesystem::path plain = path.string() + ".ppm";
    std::ofstream file{plain, std::ios::binary};
    writePpm(file, *this);
    file.close();
    Process convert{{"convert", plain.string(), "png:" + path.string()}};
    const bool isSaved = convert.wait() && convert.exitStatus() == 0;
    std::error_code ignored;
    if (isSaved) std::filesystem::remove(plain, ignored);  // else it is all that we have
    return isSaved;
}

}  // namespace kite::testing::screen
