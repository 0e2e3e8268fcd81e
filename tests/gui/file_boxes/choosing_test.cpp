// How a user chooses a file: by keyboard, by mouse, and by another filter.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

using namespace kite::testing;
using ::testing::ElementsAre;

GUI_TEST(FileBoxChoosing, ByTyping)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes) {
        EXPECT_EQ(during(ask, {}, [](Shown box) { choose(box, "any name"); }), chosen("any name"));
        EXPECT_EQ(during(ask, {},
                         [&](Shown box) {
                             write(box, tree.path("other"));
                             box.click("OK");
                         }),
                  chosen(tree.path("other")));
    }
}

GUI_TEST(FileBoxChoosing, ByAClickAndOk)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes) {
        const FileResult result = during(ask, {}, [&](Shown box) {
            clickEntry(box, XmDIALOG_LIST, tree.path("b.txt"));
            EXPECT_EQ(selectionOf(box), tree.path("b.txt"));
            box.click("OK");
        });
        EXPECT_EQ(result, chosen(tree.path("b.txt")));
    }
}

GUI_TEST(FileBoxChoosing, ByADoubleClick)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes)
        EXPECT_EQ(
            during(ask, {},
                   [&](Shown box) { doubleClickEntry(box, XmDIALOG_LIST, tree.path("c.dat")); }),
            chosen(tree.path("c.dat")));
}

GUI_TEST(FileBoxChoosing, DoubleClickOnADirectoryOpensIt)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes) {
        const FileResult result = during(ask, {.filter = "Texts|*.txt|"}, [&](Shown box) {
            doubleClickEntry(box, XmDIALOG_DIR_LIST, tree.path("sub"));
            EXPECT_TRUE(isShown(box.widget()));
            EXPECT_EQ(maskOf(box), tree.path("sub/*.txt"));
            EXPECT_EQ(selectionOf(box), tree.path("sub/"));
            EXPECT_THAT(entriesOf(box, XmDIALOG_LIST), ElementsAre(tree.path("sub/inner.txt")));
            doubleClickEntry(box, XmDIALOG_LIST, tree.path("sub/inner.txt"));
        });
        EXPECT_EQ(result, chosen(tree.path("sub/inner.txt")));
    }
}

GUI_TEST(FileBoxChoosing, ParentIsOpenedByItsEntry)
{
    const FileTree tree;
    const FileResult result = during(openFile, {.initial = "sub/inner.txt"}, [&](Shown box) {
        doubleClickEntry(box, XmDIALOG_DIR_LIST, tree.path("sub/.."));
        doubleClickEntry(box, XmDIALOG_LIST, tree.path("a.txt"));
    });
    EXPECT_EQ(result, chosen(tree.path("a.txt")));
}

GUI_TEST(FileBoxChoosing, FilterOfTheUserLists)
{
    const FileTree tree;
    look(openFile, {.filter = "Texts|*.txt|"}, [&](Shown box) {
        writeInto(box, XmDIALOG_FILTER_TEXT, tree.path("*.dat"));
        box.click("Filter");
        EXPECT_THAT(entriesOf(box, XmDIALOG_LIST), ElementsAre(tree.path("c.dat")));
        writeInto(box, XmDIALOG_FILTER_TEXT, tree.path("sub/*"));
        box.key(XK_Return);
        EXPECT_THAT(entriesOf(box, XmDIALOG_LIST), ElementsAre(tree.path("sub/inner.txt")));
        EXPECT_EQ(selectionOf(box), tree.path("sub/"));
    });
}

// The patterns of a file box are the system's, not those of a list.
GUI_TEST(FileBoxChoosing, FilterWithoutAMatchListsNothing)
{
    const FileTree tree;
    const FileResult result =
        during(openFile, {.filter = "None|*.none|"}, [](Shown box) { choose(box, "typed"); });
    EXPECT_EQ(result, chosen("typed"));
}

GUI_TEST(FileBoxChoosing, RealDirectoriesAreReadWhenTheBoxComesUp)
{
    const FileTree tree;
    look(openFile, {.filter = "New|*.new|"}, [&](Shown box) {
        tree.add("one.new");
        box.click("Filter");
        EXPECT_THAT(entriesOf(box, XmDIALOG_LIST), ElementsAre(tree.path("one.new")));
    });
    tree.add("two.new");
    look(openFile, {.filter = "New|*.new|"}, [&](Shown box) {
        EXPECT_THAT(entriesOf(box, XmDIALOG_LIST),
                    ElementsAre(tree.path("one.new"), tree.path("two.new")));
    });
}
