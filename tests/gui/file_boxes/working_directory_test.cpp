// The profile key "cddir": the working directory follows the file.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

#include <filesystem>

using namespace kite::testing;

namespace {

namespace fs = std::filesystem;

// Where the choice of a name leads to, out of the tree.
std::string directoryAfter(const FileTree& tree, FileAsk ask, const FileCall& call,
                           const std::string& name)
{
    fs::current_path(tree.path());
    during(ask, call, [&](Shown box) { choose(box, name); });
    return fs::current_path().string();
}

std::string withoutSlash(std::string path)
{
    path.pop_back();
    return path;
}

}  // namespace

GUI_TEST(FileBoxWorkingDirectory, StaysByDefault)
{
    const FileTree tree;
    const std::string here = withoutSlash(tree.path());
    for (const int value : {-100, 0, 2, -1}) {
        if (value != -100) host.profile().setInt("cddir", value);
        for (FileAsk const ask : kBothBoxes)
            EXPECT_EQ(directoryAfter(tree, ask, {}, "sub/inner.txt"), here) << value;
    }
}

GUI_TEST(FileBoxWorkingDirectory, FollowsTheFile)
{
    host.profile().setInt("cddir", 1);
    const FileTree tree;
    const std::string here = withoutSlash(tree.path());
    for (FileAsk const ask : kBothBoxes) {
        EXPECT_EQ(directoryAfter(tree, ask, {}, "sub/inner.txt"), tree.path("sub"));
        EXPECT_EQ(directoryAfter(tree, ask, {}, tree.path("sub/new")), tree.path("sub"));
        EXPECT_EQ(directoryAfter(tree, ask, {}, "/new"), "/");
        EXPECT_EQ(directoryAfter(tree, ask, {}, "new"), here) << "no directory part";
    }
    EXPECT_EQ(directoryAfter(tree, openFile, {.flag = -1}, "sub/"), tree.path("sub"));
    EXPECT_EQ(directoryAfter(tree, openFile, {.flag = -1}, "sub"), here);
}

GUI_TEST(FileBoxWorkingDirectory, StaysWhenThereIsNoFile)
{
    host.profile().setInt("cddir", 1);
    const FileTree tree;
    const std::string here = withoutSlash(tree.path());
    for (FileAsk const ask : kBothBoxes) {
        during(ask, {.initial = "sub/inner.txt"}, [](Shown box) { box.key(XK_Escape); });
        EXPECT_EQ(fs::current_path(), here) << "given up";
        EXPECT_EQ(directoryAfter(tree, ask, {}, "sub/"), here) << "a directory";
        EXPECT_EQ(directoryAfter(tree, ask, {.size = 5}, "sub/inner.txt"), here) << "does not fit";
    }
    EXPECT_EQ(during(openFile, {}, [](Shown box) { choose(box, "nowhere/a"); }),
              chosen("nowhere/a"));
    EXPECT_EQ(fs::current_path(), here) << "a directory that is not there";
}

// The next box begins where the last one ended.
GUI_TEST(FileBoxWorkingDirectory, IsWhereTheNextBoxBegins)
{
    host.profile().setInt("cddir", 1);
    const FileTree tree;
    EXPECT_EQ(directoryAfter(tree, openFile, {}, "sub/inner.txt"), tree.path("sub"));
    look(openFile, {}, [&](Shown box) { EXPECT_EQ(maskOf(box), tree.path("sub/*")); });
}

GUI_TEST(FileBoxWorkingDirectory, IsAskedForInTheSectionOfTheApplication)
{
    const FileTree tree;
    guiSetAppInfo("Title", "other");
    host.profile().setInt("cddir", 1, "other");
    host.profile().setInt("cddir", 0, "kite");
    EXPECT_EQ(directoryAfter(tree, saveFile, {}, "sub/new"), tree.path("sub"));
}
