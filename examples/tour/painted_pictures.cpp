#include "painted_pictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

namespace tour {

namespace {

constexpr int kWidth = 244;  // pixels; rows of three bytes a pixel need no padding then
constexpr int kHeight = 180;
constexpr int kHeaderSize = 54;

struct Colour {
    double red, green, blue;
};

Colour mixed(Colour a, Colour b, double share)
{
    const double most = std::clamp(share, 0.0, 1.0);
    return {a.red + (b.red - a.red) * most, a.green + (b.green - a.green) * most,
            a.blue + (b.blue - a.blue) * most};
}

// A sky over hills with a sun or a moon in it.
struct Scene {
    const char* name;
    Colour zenith, horizon, disc, hills;
    double discX, discY;
};

constexpr std::array<Scene, kPictureCount> kScenes{{
    {"Noon", {40, 110, 220}, {190, 225, 255}, {255, 250, 210}, {50, 130, 60}, 180, 35},
    {"Evening", {60, 40, 110}, {255, 150, 70}, {255, 220, 120}, {50, 40, 45}, 110, 100},
    {"Night", {5, 8, 30}, {35, 45, 90}, {230, 235, 245}, {8, 14, 16}, 60, 40},
}};

constexpr double kDiscRadius = 16;

double hillTop(int x)
{
    return 132 + 12 * std::sin(x / 31.0) + 7 * std::sin(x / 13.0 + 1);
}

Colour colourAt(const Scene& scene, int x, int y)
{
    if (y > hillTop(x)) return mixed(scene.hills, {0, 0, 0}, (y - hillTop(x)) / kHeight);
    const Colour sky = mixed(scene.zenith, scene.horizon, y / 145.0);
    const double distance = std::hypot(x - scene.discX, y - scene.discY) - kDiscRadius;
    return mixed(scene.disc, sky, distance < 0 ? 0 : 0.55 + distance / 60);
}

void put(std::vector<char>& file, std::uint32_t value, int bytes)
{
    for (int byte = 0; byte < bytes; ++byte) file.push_back(static_cast<char>(value >> 8 * byte));
}

void putHeader(std::vector<char>& file)
{
    file.insert(file.end(), {'B', 'M'});
    put(file, kHeaderSize + kWidth * kHeight * 3, 4);
    put(file, 0, 4);
    put(file, kHeaderSize, 4);
    put(file, 40, 4);  // the size of what follows
    put(file, kWidth, 4);
    put(file, kHeight, 4);
    put(file, 1, 2);
    put(file, 24, 2);  // bits to a pixel
    for (int field = 0; field < 6; ++field) put(file, 0, 4);
}

// From the bottom row up, as such files are.
std::vector<char> painted(const Scene& scene)
{
    std::vector<char> file;
    putHeader(file);
    for (int y = kHeight - 1; y >= 0; --y)
        for (int x = 0; x < kWidth; ++x) {
            const Colour colour = colourAt(scene, x, y);
            for (const double part : {colour.blue, colour.green, colour.red})
                put(file, static_cast<std::uint32_t>(part), 1);
        }
    return file;
}

// A directory of this run's own, which goes with it.
class Directory {
public:
    Directory()
    {
        std::string pattern = std::filesystem::temp_directory_path() / "tour-XXXXXX";
        if (mkdtemp(pattern.data())) path_ = pattern;
    }
    ~Directory()
    {
        std::error_code ignored;
        if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
    }
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
};

}  // namespace

const char* pictureName(int picture)
{
    return kScenes.at(static_cast<std::size_t>(picture)).name;
}

std::string pictureFile(int picture)
{
    static const Directory directory;
    if (directory.path().empty()) return {};
    const Scene& scene = kScenes.at(static_cast<std::size_t>(picture));
    const std::string path = directory.path() + "/" + scene.name + ".bmp";
    if (std::filesystem::exists(path)) return path;
    const std::vector<char> file = painted(scene);
    std::ofstream stream{path, std::ios::binary};
    stream.write(file.data(), static_cast<std::streamsize>(file.size()));
    return stream ? path : std::string{};
}

}  // namespace tour
