// The box for a directory: guiOpenFileBox with a negative mustExist.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

#include <filesystem>

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

FileResult chooseDirectory(const FileCall& call, const std::function<void(Shown)>& action)
{
    FileCall negative = call;
    negative.flag = -1;
    return during(openFile, negative, action);
}

}  // namespace

GUI_TEST(DirectoryBox, ListsDirectoriesOnly)
{
    const FileTree tree;
    for (const int flag : {-1, -2, -1000})
        look(openFile, {.flag = flag}, [&](Shown box) {
            Widget const widget = box.widget();
            for (const unsigned char gone :
                 {XmDIALOG_LIST, XmDIALOG_LIST_LABEL, XmDIALOG_HELP_BUTTON, XmDIALOG_SEPARATOR})
                EXPECT_FALSE(isShown(filePart(widget, gone))) << XtName(filePart(widget, gone));
            EXPECT_FALSE(isShown(XtParent(filePart(widget, XmDIALOG_LIST))));
            for (const unsigned char left :
                 {XmDIALOG_DIR_LIST, XmDIALOG_DIR_LIST_LABEL, XmDIALOG_FILTER_LABEL,
                  XmDIALOG_FILTER_TEXT, XmDIALOG_SELECTION_LABEL, XmDIALOG_TEXT, XmDIALOG_OK_BUTTON,
                  XmDIALOG_APPLY_BUTTON, XmDIALOG_CANCEL_BUTTON})
                EXPECT_TRUE(isShown(filePart(widget, left))) << XtName(filePart(widget, left));
            EXPECT_THAT(entriesOf(box, XmDIALOG_DIR_LIST),
                        ElementsAre(tree.path("."), tree.path(".."), tree.path("sub")));
        });
}

// The parent's entry stands for the directory that is listed.
GUI_TEST(DirectoryBox, EntryGoesIntoTheText)
{
    const FileTree tree;
    for (const auto& [entry, path] :
         {std::pair{"sub", "sub/"}, std::pair{"..", ""}, std::pair{".", ""}}) {
        SCOPED_TRACE(entry);
        const FileResult result = chooseDirectory({.initial = "sub/x"}, [&](Shown box) {
            writeInto(box, XmDIALOG_FILTER_TEXT, tree.path("*"));
            box.key(XK_Return);
            clickEntry(box, XmDIALOG_DIR_LIST, tree.path(entry));
            EXPECT_EQ(selectionOf(box), tree.path(path));
            box.click("OK");
        });
        EXPECT_EQ(result, chosen(tree.path(path)));
    }
}

GUI_TEST(DirectoryBox, EntriesOfTheRoot)
{
    EXPECT_EQ(chooseDirectory({.initial = "/"},
                              [](Shown box) {
                                  clickEntry(box, XmDIALOG_DIR_LIST, "/..");
                                  EXPECT_EQ(selectionOf(box), "/");
                                  clickEntry(box, XmDIALOG_DIR_LIST, "/bin");
                                  EXPECT_EQ(selectionOf(box), "/bin/");
                                  clickEntry(box, XmDIALOG_DIR_LIST, "/.");
                                  box.click("OK");
                              }),
              chosen("/"));
}

GUI_TEST(DirectoryBox, EntryCanBeReachedByTheKeyboard)
{
    const FileTree tree;
    const FileResult result = chooseDirectory({}, [&](Shown box) {
        clickEntry(box, XmDIALOG_DIR_LIST, tree.path(".."));
        box.key(XK_Down);
        EXPECT_EQ(selectionOf(box), tree.path("sub/"));
        box.click("OK");
    });
    EXPECT_EQ(result, chosen(tree.path("sub/")));
}

// Entries whose names only begin or end like the parent's.
GUI_TEST(DirectoryBox, DotsInNamesArePartOfThem)
{
    const FileTree tree;
    for (const char* const name : {"a..", "b.", ".c", "..d"}) {
        std::filesystem::create_directory(tree.path(name));
        EXPECT_EQ(chooseDirectory({},
                                  [&](Shown box) {
                                      clickEntry(box, XmDIALOG_DIR_LIST, tree.path(name));
                                      box.click("OK");
                                  }),
                  chosen(tree.path(name) + '/'));
        std::filesystem::remove(tree.path(name));
    }
}

GUI_TEST(DirectoryBox, DoubleClickOpensTheDirectory)
{
    const FileTree tree;
    tree.add("sub/deep/file");
    const FileResult result = chooseDirectory({}, [&](Shown box) {
        doubleClickEntry(box, XmDIALOG_DIR_LIST, tree.path("sub"));
        EXPECT_TRUE(isShown(box.widget()));
        EXPECT_EQ(maskOf(box), tree.path("sub/*"));
        clickEntry(box, XmDIALOG_DIR_LIST, tree.path("sub/deep"));
        box.click("OK");
    });
    EXPECT_EQ(result, chosen(tree.path("sub/deep/")));
}

// Neither an extension nor a test, and "/" may end it.
GUI_TEST(DirectoryBox, TextIsReturnedAsItStands)
{
    const FileTree tree;
    for (const char* const name : {"sub", "sub/", "a.txt", "missing", "missing/", "/", " "}) {
        const FileResult result =
            chooseDirectory({.extension = "txt"}, [&](Shown box) { choose(box, name); });
        EXPECT_EQ(result, chosen(name));
    }
    EXPECT_EQ(chooseDirectory({}, [](Shown box) { box.click("OK"); }), chosen(tree.path()))
        << "the working directory, as the box comes up";
    EXPECT_EQ(chooseDirectory({}, [](Shown box) { choose(box, ""); }), kNothing);
}

GUI_TEST(DirectoryBox, SaveBoxHasNone)
{
    const FileTree tree;
    look(saveFile, {.flag = -1},
         [](Shown box) { EXPECT_TRUE(isShown(filePart(box.widget(), XmDIALOG_LIST))); });
}
