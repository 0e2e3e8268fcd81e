// image_magick_test.cpp: another reader sees the same pictures.

#include <fstream>
#include <iterator>

#include "gui_test.h"
#include "loaded.h"

using namespace kite::testing;

namespace {

bool convert(const std::vector<std::string>& arguments)
{
    std::vector<std::string> command{"convert"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    Process process{command};
    const bool hasEnded = process.wait();
    EXPECT_EQ(process.exitStatus(), 0) << process.output();
    return hasEnded && process.exitStatus() == 0;
}

// As the other reader has them, in the pixels of a screen of 24 bits.
std::vector<Pixel> pixelsByImageMagick(const std::string& path)
{
    const std::string raw = path + ".rgb";
    if (!convert({path, "-depth", "8", "RGB:" + raw})) return {};
    std::ifstream file{raw, std::ios::binary};
    const std::string bytes{std::istreambuf_iterator<char>{file}, {}};
    std::vector<Pixel> pixels;
    const auto byte = [&](std::size_t at) { return Pixel{static_cast<unsigned char>(bytes[at])}; };
    for (std::size_t at = 0; at + 2 < bytes.size(); at += 3)
        pixels.push_back(byte(at) << 16U | byte(at + 1) << 8U | byte(at + 2));
    return pixels;
}

std::vector<Pixel> pixelsByUs(const std::string& path)
{
    const kite::images::Picture picture = kite::images::load(defaultScreen(), path, 0);
    if (!picture) return {};
    std::vector<Pixel> pixels;
    for (const auto& row : pixelsOf(picture.pixmap))
        pixels.insert(pixels.end(), row.begin(), row.end());
    XFreePixmap(toolkit::display(), picture.pixmap);
    return pixels;
}

void expectSame(const std::string& path, const std::string& what)
{
    const std::vector<Pixel> expected = pixelsByImageMagick(path);
    ASSERT_FALSE(expected.empty()) << what;
    EXPECT_TRUE(pixelsByUs(path) == expected) << what;
}

}  // namespace

GUI_TEST(ImageMagick, FilesAreReadAsItReadsThem)
{
    struct {
        const char* what;
        std::vector<std::string> options;
        int bits;
        int compression;
    } const rows[] = {
        {"24 bits", {"-type", "TrueColor"}, 24, 0},
        {"8 bits", {"-colors", "200", "-type", "Palette", "-compress", "none"}, 8, 0},
        {"8 bits in runs", {"-colors", "20", "-type", "Palette", "-compress", "RLE"}, 8, 1},
        {"4 bits", {"-colors", "12", "-type", "Palette", "-compress", "none"}, 4, 0},
        {"1 bit", {"-monochrome", "-compress", "none"}, 1, 0},
    };
    for (const auto& row : rows) {
        const std::string path = host.appDir() / "converted.bmp";
        std::vector<std::string> arguments{"-size", "37x23", "-seed", "5", "plasma:red-blue"};
        arguments.insert(arguments.end(), row.options.begin(), row.options.end());
        arguments.push_back("BMP3:" + path);
        ASSERT_TRUE(convert(arguments)) << row.what;
        std::ifstream file{path, std::ios::binary};
        const std::string bytes{std::istreambuf_iterator<char>{file}, {}};
        ASSERT_GT(bytes.size(), 54U);
        EXPECT_EQ(int{bytes[28]}, row.bits) << row.what;
        EXPECT_EQ(int{bytes[30]}, row.compression) << row.what;
        expectSame(path, row.what);
    }
}

// Of every kind; what is undrawn there is index 0.
GUI_TEST(ImageMagick, ReadsTheFilesOfTheseTestsAsWeDo)
{
    const BmpFile::Palette palette{{}, kRed, kGreen, kBlue, kGrey};
    const BmpFile::Indexes rows{{0, 1, 2, 3, 4}, {4, 3, 2, 1, 0}};
    const std::string runs8("\2\1\3\4\0\0\0\3\1\2\3\0\2\0\0\1", 16);
    const std::string runs4("\5\x12\0\0\0\4\x12\x34\1\x10\0\1", 12);
    struct {
        const char* name;
        BmpFile file;
    } const files[] = {{"bits8.bmp", BmpFile::indexed(8, palette, rows)},
                       {"bits4.bmp", BmpFile::indexed(4, palette, rows)},
                       {"bits1.bmp", BmpFile::indexed(1, {kRed, kBlue}, {{0, 1, 1, 0, 1}})},
                       {"bits24.bmp", BmpFile::direct(noise(7, 5))},
                       {"runs8.bmp", BmpFile::inRuns(8, palette, 5, 2, runs8)},
                       {"runs4.bmp", BmpFile::inRuns(4, palette, 5, 2, runs4)}};
    for (const auto& [name, file] : files) expectSame(host.addFile(name, file.bytes()), name);
}
