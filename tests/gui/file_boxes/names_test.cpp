// Names that a system allows and a toolkit might not expect.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>
#include <Xm/List.h>
#include <sys/stat.h>
#include <unistd.h>

#include <clocale>
#include <filesystem>

using namespace kite::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

// A file of that name is listed alone, and chosen with the mouse.
void expectChosenByMouse(const FileTree& tree, const std::string& name)
{
    SCOPED_TRACE(::testing::PrintToString(name));
    const fs::path directory = tree.path("names");
    tree.add("names/" + name);
    const FileResult result = during(openFile, {.initial = "names/"}, [&](Shown box) {
        Widget const list = filePart(box.widget(), XmDIALOG_LIST);
        ASSERT_EQ(resource<int>(list, XmNitemCount), 1);
        Robot::instance().click(list, LeftButton, Point{rectOf(list).width / 2, 10});
        box.click("OK");
    });
    EXPECT_EQ(result, chosen(tree.path("names/" + name)));
    fs::remove_all(directory);
}

}  // namespace

GUI_TEST(FileBoxNames, OddOnesAreChosenByMouse)
{
    const FileTree tree;
    for (const char* const name :
         {"with some spaces", " ", "it's \"quoted\"", "back\\slash", "~", "#x", "star*", "q?",
          "[x]", "$HOME", "-f", "caf\xe9", "\xff\xfe", "per%scent%n"})
        expectChosenByMouse(tree, name);
    expectChosenByMouse(tree, std::string(255, 'n'));
}

GUI_STARTUP_TEST(FileBoxNames, OddOnesAreChosenByMouseInUtf8)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, "C.UTF-8"));
    app.run([&] {
        const FileTree tree;
        for (const char* const name : {"caf\xc3\xa9", "\xe6\x97\xa5\xe6\x9c\xac", "plain name"})
            expectChosenByMouse(tree, name);
        // The text field cannot show what is no text: it stays empty.
        const std::string name = "caf\xe9";
        tree.add("names/" + name);
        EXPECT_EQ(during(openFile, {.initial = "names/"},
                         [](Shown box) {
                             clickRow(filePart(box.widget(), XmDIALOG_LIST), 1);
                             box.click("OK");
                         }),
                  kNothing);
    });
}

// The toolkit makes lines and columns of them: the file is not found by the name that is left.
GUI_TEST(FileBoxNames, LineEndAndTabAreLostByMouseNotByTyping)
{
    for (const char* const name : {"new\nline", "tab\there"}) {
        const FileTree tree;
        tree.add(std::string{"names/"} + name);
        script.inOrder({script.shown("v_filebox",
                                     [](Shown box) {
                                         Widget const list = filePart(box.widget(), XmDIALOG_LIST);
                                         EXPECT_EQ(resource<int>(list, XmNitemCount), 1);
                                         clickRow(list, 1);
                                         box.click("OK");
                                     }),
                        script.shown("v_infobox", [](Shown message) { message.key(XK_Return); }),
                        fileBoxAgain([](Shown box) { box.key(XK_Escape); })});
        EXPECT_EQ(openFile({.flag = 1, .initial = "names/"}), kNothing);
        const std::string path = tree.path(std::string{"names/"} + name);
        EXPECT_EQ(
            during(openFile, {.flag = 1, .initial = path}, [](Shown box) { box.key(XK_Return); }),
            chosen(path));
    }
}

GUI_TEST(FileBoxNames, DirectoriesKeepTheirTabs)
{
    for (const char* const name : {"tab\there", "with space", "caf\xe9"}) {
        const FileTree tree;
        fs::remove_all(tree.path("sub"));
        fs::create_directory(tree.path(name));
        const FileResult result = during(openFile, {.flag = -1}, [](Shown box) {
            clickRow(filePart(box.widget(), XmDIALOG_DIR_LIST), 3);
            box.click("OK");
        });
        EXPECT_EQ(result, chosen(tree.path(name) + '/'));
    }
}

// A symbolic link that leads nowhere, a pipe and a directory are no files to list.
GUI_TEST(FileBoxNames, OnlyFilesAreListed)
{
    const FileTree tree;
    fs::create_directory(tree.path("names"));
    fs::create_symlink("nothing", tree.path("names/to_nothing"));
    fs::create_symlink("../a.txt", tree.path("names/to_file"));
    fs::create_symlink("../sub", tree.path("names/to_directory"));
    ASSERT_EQ(mkfifo(tree.path("names/pipe").c_str(), 0600), 0);
    look(openFile, {.initial = "names/"}, [&](Shown box) {
        EXPECT_THAT(entriesOf(box, XmDIALOG_LIST), ElementsAre(tree.path("names/to_file")));
        EXPECT_THAT(entriesOf(box, XmDIALOG_DIR_LIST), Contains(tree.path("names/to_directory")));
    });
}

// As an ordinary user: root may read everywhere.
GUI_TEST(FileBoxNames, DirectoryThatCannotBeReadIsNotEntered)
{
    const FileTree tree;
    fs::permissions(tree.path("sub"), fs::perms{0});
    fs::permissions(tree.path(), fs::perms{0755});
    fs::permissions(tree.path(".."), fs::perms{0755});
    const bool isRoot = geteuid() == 0;
    if (isRoot) {
        ASSERT_EQ(seteuid(65534), 0);
    }
    const FileResult result = during(openFile, {.flag = 1}, [&](Shown box) {
        doubleClickEntry(box, XmDIALOG_DIR_LIST, tree.path("sub"));
        EXPECT_TRUE(isShown(box.widget()));
        EXPECT_THAT(entriesOf(box, XmDIALOG_LIST), Contains(tree.path("a.txt")));
        choose(box, tree.path("a.txt"));
    });
    EXPECT_EQ(result, chosen(tree.path("a.txt")));
    look(openFile, {.initial = "sub/inner.txt"},
         [](Shown box) { EXPECT_EQ(selectionOf(box), "sub/inner.txt"); });
    if (isRoot) {
        ASSERT_EQ(seteuid(0), 0);
    }
    fs::permissions(tree.path("sub"), fs::perms::owner_all);
}

GUI_TEST(FileBoxNames, WorkingDirectoryThatIsGone)
{
    const FileTree tree;
    fs::create_directory(tree.path("gone"));
    fs::current_path(tree.path("gone"));
    fs::remove(tree.path("gone"));
    EXPECT_EQ(during(openFile, {.flag = 1}, [&](Shown box) { choose(box, tree.path("a.txt")); }),
              chosen(tree.path("a.txt")));
    fs::current_path(tree.path());
}
