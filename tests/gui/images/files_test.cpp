// files_test.cpp: which files are opened, and what becomes of those that are no pictures.

#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "gui_test.h"
#include "loaded.h"
#include "server_resources.h"

using namespace kite::testing;
using kite::images::kNoPixmap;
using kite::images::load;
using kite::images::Picture;

namespace {

std::string goodBytes()
{
    return BmpFile::direct(noise(3, 2)).bytes();
}

bool isLoaded(const std::string& path)
{
    const Picture picture = load(defaultScreen(), path, 0);
    if (picture) XFreePixmap(toolkit::display(), picture.pixmap);
    return static_cast<bool>(picture);
}

// Files of these contents, none of which is a picture. Some are so only when much was drawn.
std::vector<std::string> badFiles()
{
    const std::string good = goodBytes();
    BmpFile unbacked = BmpFile::direct(noise(1, 1));
    unbacked.width = 30000;
    unbacked.height = 30000;
    BmpFile shortPalette = BmpFile::indexed(8, {kRed}, {{0}});
    shortPalette.coloursUsed = 0;
    return {"",
            "BM",
            good.substr(0, 40),
            good.substr(0, good.size() - 1),
            unbacked.bytes(),
            shortPalette.bytes(),
            BmpFile::inRuns(8, {kRed}, 200, 200, std::string("\5\0\0\2\1\3\1\0\5", 9)).bytes()};
}

}  // namespace

GUI_TEST(PictureFiles, AreChosenByTheirExtension)
{
    struct {
        const char* name;
        bool isLoaded;
    } const rows[] = {
        {"a.bmp", true},    {"a.BMP", true},       {"a.bMp", true},   {"a.b.bmp", true},
        {".bmp", true},     {"a.bmp.b", false},    {"a.bmpx", false}, {"a.bmpxyz", false},
        {"a.bm", false},    {"a.", false},         {"bmp", false},    {"a.gif", false},
        {"a.jpg", false},   {"a.jpeg", false},     {"a.xbm", false},  {"a.xpm", false},
        {"a.jpegs", false}, {"d.bmp/file", false}, {"a.dib", false},  {"a bmp", false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(isLoaded(host.addFile(row.name, goodBytes())), row.isLoaded) << row.name;
    EXPECT_FALSE(isLoaded(""));
    EXPECT_FALSE(isLoaded("."));
    EXPECT_FALSE(isLoaded(".."));
}

// Who opens a pipe for reading waits for a writer: those of other formats are not opened at all.
GUI_TEST(PictureFiles, OfAnyOtherTypeAreRefused)
{
    for (const char* const name : {"a.gif", "a.jpg", "a.jpeg", "a.xbm", "a.xpm", "a.png"}) {
        const std::string path = host.appDir() / name;
        ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
        EXPECT_FALSE(isLoaded(path)) << name;
    }
    const std::string pipe = host.appDir() / "pipe.bmp";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(isLoaded(pipe));
    const std::string directory = host.appDir() / "directory.bmp";
    std::filesystem::create_directory(directory);
    EXPECT_FALSE(isLoaded(directory));
    const std::string device = host.appDir() / "device.bmp";
    std::filesystem::create_symlink("/dev/zero", device);
    EXPECT_FALSE(isLoaded(device));
    EXPECT_FALSE(isLoaded(host.appDir() / "missing.bmp"));
}

// What stands for the failure is what callers compare with.
GUI_TEST(PictureFiles, ThatAreNoPicturesGiveNone)
{
    EXPECT_EQ(kNoPixmap, 2U);
    for (const std::string& bytes : badFiles()) {
        const Picture picture = loadBytes(bytes);
        EXPECT_EQ(picture.pixmap, kNoPixmap);
        EXPECT_EQ(picture.width, 0);
        EXPECT_EQ(picture.height, 0);
    }
}

GUI_TEST(PictureFiles, LeaveNothingBehindInTheServer)
{
    Display* const display = toolkit::display();
    const std::string runs("\1\0\0\1", 4);
    const std::vector<std::string> good{goodBytes(), BmpFile::indexed(8, {kRed}, {{0}}).bytes(),
                                        BmpFile::inRuns(8, {kRed}, 20, 20, runs).bytes()};
    pixelsLoaded(goodBytes());  // what is made only once
    const auto before = serverResources(display);
    ASSERT_GT(before.at("PIXMAP"), 0U);
    for (const std::string& bytes : badFiles()) EXPECT_FALSE(loadBytes(bytes));
    EXPECT_EQ(serverResources(display), before);
    for (const std::string& bytes : good) EXPECT_FALSE(pixelsLoaded(bytes).empty());
    EXPECT_EQ(serverResources(display), before);
    const Picture picture = loadBytes(goodBytes());
    auto withOne = before;
    ++withOne.at("PIXMAP");
    EXPECT_EQ(serverResources(display), withOne);
    XFreePixmap(display, picture.pixmap);
}

GUI_TEST(PictureFiles, LeaveNothingBehindInTheProcess)
{
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator{"/proc/self/fd"}, {});
    };
    const auto before = openFiles();
    for (const std::string& bytes : badFiles()) EXPECT_FALSE(loadBytes(bytes));
    EXPECT_FALSE(pixelsLoaded(goodBytes()).empty());
    EXPECT_EQ(openFiles(), before);
}
