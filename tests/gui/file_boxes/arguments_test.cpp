// What the host gives to a file box: buffer, title, filter, the file to begin with.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

using namespace kite::testing;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;

GUI_TEST(FileBoxArguments, BufferMustHoldAByte)
{
    char buffer[4] = "abc";
    EXPECT_MISUSE(guiOpenFileBox("T", "A|*|", "x", 0, nullptr, 4), "OpenFileBox: invalid buffer",
                  -1);
    EXPECT_MISUSE(guiOpenFileBox("T", "A|*|", "x", -1, nullptr, 4), "OpenFileBox: invalid buffer",
                  -1);
    EXPECT_MISUSE(guiSaveFileBox("T", "A|*|", "x", 0, nullptr, 4), "SaveFileBox: invalid buffer",
                  -1);
    for (const int size : {1, 0, -1}) {
        EXPECT_MISUSE(guiOpenFileBox("T", "A|*|", "x", 0, buffer, size),
                      "OpenFileBox: invalid buffer", -1);
        EXPECT_MISUSE(guiOpenFileBox("T", "A|*|", "x", -1, buffer, size),
                      "OpenFileBox: invalid buffer", -1);
        EXPECT_MISUSE(guiSaveFileBox("T", "A|*|", "x", 1, buffer, size),
                      "SaveFileBox: invalid buffer", -1);
    }
    EXPECT_STREQ(buffer, "abc") << "left alone";
}

GUI_TEST(FileBoxArguments, TitleHasADefault)
{
    for (const char* const none : {static_cast<const char*>(nullptr), ""}) {
        look(openFile, {.title = none}, [](Shown box) { EXPECT_EQ(box.title(), "Open"); });
        look(openFile, {.title = none, .flag = -1},
             [](Shown box) { EXPECT_EQ(box.title(), "Open"); });
        look(saveFile, {.title = none}, [](Shown box) { EXPECT_EQ(box.title(), "Save As"); });
    }
    for (FileAsk const ask : kBothBoxes)
        look(ask, {.title = "A file, please"},
             [](Shown box) { EXPECT_EQ(box.title(), "A file, please"); });
    look(openFile, {.title = "A directory", .flag = -1},
         [](Shown box) { EXPECT_EQ(box.title(), "A directory"); });
}

// The mask is the working directory and the first pattern.
GUI_TEST(FileBoxArguments, FirstPatternOfTheFilterCounts)
{
    const FileTree tree;
    const std::vector<std::pair<const char*, std::string>> cases{
        {nullptr, "*.*"},
        {"", "*.*"},
        {"*.txt", "*"},
        {"Texts", "*"},
        {"Texts|*.txt", "*.txt"},
        {"Texts|*.txt|", "*.txt"},
        {"|*.txt|", "*.txt"},
        {"Texts|*.txt|Data|*.dat|", "*.txt"},
        {"Texts||Data|*.dat|", "*"},
        {"Texts|", "*"},
        {"|", "*"},
        {"Both|*.txt;*.dat|", "*.txt;*.dat"},
    };
    for (const auto& [filter, pattern] : cases) {
        SCOPED_TRACE(filter ? filter : "(null)");
        look(openFile, {.filter = filter},
             [&, pattern = pattern](Shown box) { EXPECT_EQ(maskOf(box), tree.path(pattern)); });
    }
    look(saveFile, {.filter = "Texts|*.txt|"},
         [&](Shown box) { EXPECT_EQ(maskOf(box), tree.path("*.txt")); });
    look(openFile, {.filter = "*.txt", .flag = -1},
         [&](Shown box) { EXPECT_EQ(maskOf(box), tree.path("*")); });
}

GUI_TEST(FileBoxArguments, FilesOfThePatternAreListed)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes) {
        look(ask, {.filter = "Texts|*.txt|"}, [&](Shown box) {
            EXPECT_THAT(entriesOf(box, XmDIALOG_LIST),
                        ElementsAre(tree.path("a.txt"), tree.path("b.txt")));
            EXPECT_THAT(entriesOf(box, XmDIALOG_DIR_LIST),
                        ElementsAre(tree.path("."), tree.path(".."), tree.path("sub")));
        });
        look(ask, {.filter = nullptr}, [&](Shown box) {
            EXPECT_THAT(entriesOf(box, XmDIALOG_LIST),
                        ElementsAre(tree.path("a.txt"), tree.path("b.txt"), tree.path("c.dat")));
        });
        look(ask, {.filter = "*.txt"}, [&](Shown box) {
            EXPECT_THAT(entriesOf(box, XmDIALOG_LIST), Contains(tree.path("plain")));
        });
    }
}

// Its full path gives the directory; the text is what the host has given.
GUI_TEST(FileBoxArguments, BeginsWithTheFileInTheBuffer)
{
    const FileTree tree;
    struct Case {
        std::string initial, mask;
    };
    const std::vector<Case> cases{
        {tree.path("sub/inner.txt"), tree.path("sub/*")},
        {"sub/inner.txt", tree.path("sub/*")},
        {"sub/../a.txt", tree.path("*")},
        {"a.txt", tree.path("*")},
        {"sub/not there", tree.path("sub/*")},
        {"sub", tree.path("*")},
        {"sub/", tree.path("sub/*")},
        {"/", "/*"},
    };
    for (const auto& [initial, mask] : cases) {
        SCOPED_TRACE(initial);
        for (FileAsk const ask : kBothBoxes)
            look(ask, {.initial = initial}, [&, mask = mask, initial = initial](Shown box) {
                EXPECT_EQ(selectionOf(box), initial);
                EXPECT_EQ(maskOf(box), mask);
            });
    }
    look(openFile, {.flag = -1, .initial = "sub/inner.txt"}, [&](Shown box) {
        EXPECT_EQ(selectionOf(box), "sub/inner.txt");
        EXPECT_EQ(maskOf(box), tree.path("sub/*"));
    });
}

GUI_TEST(FileBoxArguments, WithoutAFileTheTextIsTheWorkingDirectory)
{
    const FileTree tree;
    look(openFile, {}, [&](Shown box) { EXPECT_EQ(selectionOf(box), tree.path()); });
    look(saveFile, {}, [&](Shown box) { EXPECT_EQ(selectionOf(box), tree.path()); });
}

GUI_TEST(FileBoxArguments, DirectoryThatDoesNotExistLeavesAUsableBox)
{
    const FileTree tree;
    const std::string initial = tree.path("nowhere/at/all.txt");
    const FileResult result = during(openFile, {.initial = initial}, [&](Shown box) {
        EXPECT_EQ(selectionOf(box), initial);
        writeInto(box, XmDIALOG_FILTER_TEXT, "*.txt");
        box.click("Filter");
        clickEntry(box, XmDIALOG_LIST, tree.path("a.txt"));
        box.click("OK");
    });
    EXPECT_EQ(result, chosen(tree.path("a.txt")));
}

// The end of the text is what the user goes on with.
GUI_TEST(FileBoxArguments, TypingGoesOnBehindTheText)
{
    const FileTree tree;
    const FileResult typed = during(openFile, {.initial = "sub/in"}, [](Shown box) {
        box.type("ner.txt");
        box.key(XK_Return);
    });
    EXPECT_EQ(typed, chosen("sub/inner.txt"));
    const FileResult behind = during(openFile, {}, [](Shown box) {
        box.type("a.txt");
        box.key(XK_Return);
    });
    EXPECT_EQ(behind, chosen(tree.path("a.txt")));
}

GUI_TEST(FileBoxArguments, BufferWithoutAnEndIsReadToItsSize)
{
    const FileTree tree;
    char buffer[6] = {'a', '.', 't', 'x', 't', 'Z'};
    script.whenShown("v_filebox", [](Shown box) {
        EXPECT_EQ(selectionOf(box), "a.txt");
        box.key(XK_Escape);
    });
    EXPECT_EQ(guiOpenFileBox(nullptr, nullptr, nullptr, 0, buffer, 5), -1);
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(buffer[5], 'Z');
}

GUI_TEST(FileBoxArguments, FileTooLongForTheSystemIsShownAllTheSame)
{
    const FileTree tree;
    for (const std::string& initial :
         {std::string(3000, 'x'), '/' + std::string(3000, 'x') + "/name",
          tree.path(std::string(300, 'y') + "/name")}) {
        look(openFile, {.initial = initial, .size = 8192},
             [&](Shown box) { EXPECT_EQ(selectionOf(box), initial); });
    }
}

// Which leaves the directory open in which the box begins.
GUI_TEST(FileBoxArguments, FullNameMayBeUnknownToTheHost)
{
    const FileTree tree;
    host.forgetFullNames();
    for (const FileAsk ask : kBothBoxes) {
        look(ask, {.initial = "sub/inner.txt"},
             [](Shown box) { EXPECT_EQ(selectionOf(box), "sub/inner.txt"); });
    }
}
