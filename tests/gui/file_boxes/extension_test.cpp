// The extension that names without one get.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

#include <filesystem>

using namespace kite::testing;

namespace {

std::string named(FileAsk ask, const char* extension, const std::string& name, int flag = 0)
{
    return during(ask, {.extension = extension, .flag = flag},
                  [&](Shown box) { choose(box, name); })
        .path;
}

}  // namespace

GUI_TEST(FileBoxExtension, IsAppendedToNamesWithoutOne)
{
    struct Case {
        const char* extension;
        std::string name, path;
    };
    const std::vector<Case> cases{
        {"txt", "notes", "notes.txt"},
        {"txt", "a.b", "a.b"},
        {"txt", "notes.", "notes."},
        {"txt", ".hidden", ".hidden"},
        {"txt", "d.1/notes", "d.1/notes.txt"},
        {"txt", "d/a.b", "d/a.b"},
        {"tar.gz", "notes", "notes.tar.gz"},
        {".txt", "notes", "notes..txt"},
        {"", "notes", "notes"},
        {nullptr, "notes", "notes"},
    };
    for (const auto& [extension, name, path] : cases)
        for (FileAsk const ask : kBothBoxes) EXPECT_EQ(named(ask, extension, name), path) << name;
}

GUI_TEST(FileBoxExtension, IsAppendedBeforeTheFileIsTested)
{
    const FileTree tree;
    EXPECT_EQ(named(openFile, "txt", "a", 1), "a.txt");
    EXPECT_EQ(named(openFile, "txt", "sub/inner", 1), "sub/inner.txt");
    // "sub" is a directory, "sub.txt" a file that is not there.
    EXPECT_EQ(named(saveFile, "txt", "sub", 1), "sub.txt");
}

// Behind the file that was listed as well as behind the one that was typed.
GUI_TEST(FileBoxExtension, IsAppendedToAFileOfTheList)
{
    const FileTree tree;
    const FileResult result = during(openFile, {.extension = "txt"}, [&](Shown box) {
        doubleClickEntry(box, XmDIALOG_LIST, tree.path("plain"));
    });
    EXPECT_EQ(result, chosen(tree.path("plain.txt")));
}

GUI_TEST(FileBoxExtension, IsLeftOutWhenThePathGetsTooLong)
{
    const auto accepted = [](std::size_t length) {
        return during(saveFile,
                      {.extension = "txt", .initial = std::string(length, 'a'), .size = 2000},
                      [](Shown box) { box.key(XK_Return); });
    };
    EXPECT_EQ(accepted(1019), chosen(std::string(1019, 'a') + ".txt"));
    EXPECT_EQ(accepted(1020), chosen(std::string(1020, 'a')));
    EXPECT_EQ(accepted(1023), chosen(std::string(1023, 'a')));
}
