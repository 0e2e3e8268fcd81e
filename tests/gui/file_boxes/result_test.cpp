// What the host gets: the path in its buffer, and the length.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

using namespace kite::testing;

namespace {

FileResult typed(FileAsk ask, FileCall call, const std::string& name)
{
    return during(ask, call, [&](Shown box) { choose(box, name); });
}

}  // namespace

GUI_TEST(FileBoxResult, PathMustFitWithItsEnd)
{
    for (const int flag : {0, -1}) {
        EXPECT_EQ(typed(openFile, {.flag = flag, .size = 6}, "abcde"), chosen("abcde"));
        EXPECT_EQ(typed(openFile, {.flag = flag, .size = 5}, "abcde"), kNothing);
        EXPECT_EQ(typed(openFile, {.flag = flag, .initial = "z", .size = 2}, "a"), chosen("a"));
        EXPECT_EQ(typed(openFile, {.flag = flag, .initial = "z", .size = 2}, "ab"), kNothing);
    }
    EXPECT_EQ(typed(saveFile, {.size = 6}, "abcde"), chosen("abcde"));
    EXPECT_EQ(typed(saveFile, {.size = 5}, "abcde"), kNothing);
}

GUI_TEST(FileBoxResult, ExtensionCountsForTheFit)
{
    for (FileAsk const ask : kBothBoxes) {
        EXPECT_EQ(typed(ask, {.extension = "txt", .size = 6}, "a"), chosen("a.txt"));
        EXPECT_EQ(typed(ask, {.extension = "txt", .size = 5}, "a"), kNothing);
    }
}

// Longer texts are cut.
GUI_TEST(FileBoxResult, PathHasAtMost1023Bytes)
{
    const auto accepted = [](FileAsk ask, int flag, std::size_t length) {
        return during(ask,
                      {.flag = flag, .initial = std::string(length - 1, 'a') + 'b', .size = 4096},
                      [](Shown box) { box.key(XK_Return); });
    };
    for (const int flag : {0, -1}) {
        EXPECT_EQ(accepted(openFile, flag, 1023), chosen(std::string(1022, 'a') + 'b'));
        EXPECT_EQ(accepted(openFile, flag, 1024), chosen(std::string(1023, 'a')));
        EXPECT_EQ(accepted(openFile, flag, 3000), chosen(std::string(1023, 'a')));
    }
    EXPECT_EQ(accepted(saveFile, 0, 1024), chosen(std::string(1023, 'a')));
}

GUI_TEST(FileBoxResult, EmptyTextOrADirectoryIsGivingUp)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes)
        for (const int flag : {0, 1})
            for (const std::string& name : {std::string{}, std::string{"/"}, std::string{"sub/"},
                                            std::string{"new/"}, tree.path()}) {
                SCOPED_TRACE(name);
                EXPECT_EQ(typed(ask, {.extension = "txt", .flag = flag}, name), kNothing);
            }
}

// As it comes up, the box holds the working directory.
GUI_TEST(FileBoxResult, OkAtOnceIsGivingUp)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes)
        EXPECT_EQ(during(ask, {}, [](Shown box) { box.click("OK"); }), kNothing);
}

GUI_TEST(FileBoxResult, FileInTheBufferCanBeTakenAsItIs)
{
    const FileTree tree;
    EXPECT_EQ(during(openFile, {.flag = 1, .initial = "sub/inner.txt"},
                     [](Shown box) { box.key(XK_Return); }),
              chosen("sub/inner.txt"));
    EXPECT_EQ(
        during(saveFile, {.flag = 1, .initial = "new.txt"}, [](Shown box) { box.click("OK"); }),
        chosen("new.txt"));
}
