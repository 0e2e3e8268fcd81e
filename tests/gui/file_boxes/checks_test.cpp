// Whether the file may be opened or written: a box says why not, and the user chooses again.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>
#include <sys/stat.h>

#include <filesystem>

using namespace kite::testing;

namespace {

namespace fs = std::filesystem;

// Chooses a name that is refused with a message, sees the file box again, and gives up.
void expectRefused(FileAsk ask, const FileCall& call, const std::string& name,
                   const std::string& text)
{
    SCOPED_TRACE(name);
    Script& script = Script::instance();
    Widget box = nullptr;
    script.inOrder({script.shown("v_filebox",
                                 [&](Shown shown) {
                                     box = shown.widget();
                                     choose(shown, name);
                                 }),
                    script.shown("v_infobox",
                                 [&](Shown message) {
                                     EXPECT_EQ(message.message(), text);
                                     EXPECT_TRUE(isShown(box)) << "the file box stays";
                                     EXPECT_EQ(XtParent(message.shell()), box);
                                     message.key(XK_Return);
                                 }),
                    fileBoxAgain([&](Shown again) {
                        EXPECT_EQ(again.widget(), box);
                        EXPECT_EQ(selectionOf(again), name);
                        again.key(XK_Escape);
                    })});
    EXPECT_EQ(ask(call), kNothing);
}

constexpr char kMissing[] = "Cannot access the file";
constexpr char kDirectory[] = "It's a directory, not a file";

}  // namespace

GUI_TEST(FileBoxChecks, FileToOpenMustExist)
{
    const FileTree tree;
    for (const int mustExist : {1, 2})
        expectRefused(openFile, {.flag = mustExist}, tree.path("missing"), kMissing);
    expectRefused(openFile, {.flag = 1}, "nowhere/a.txt", kMissing);
    expectRefused(openFile, {.flag = 1}, "a.txt/b", kMissing);
    expectRefused(openFile, {.extension = "txt", .flag = 1}, "plain", kMissing);
}

GUI_TEST(FileBoxChecks, DirectoriesAreNoFiles)
{
    const FileTree tree;
    expectRefused(openFile, {.flag = 1}, tree.path("sub"), kDirectory);
    expectRefused(openFile, {.flag = 1}, ".", kDirectory);
    for (const int confirm : {1, -1})
        expectRefused(saveFile, {.flag = confirm}, tree.path("sub"), kDirectory);
}

GUI_TEST(FileBoxChecks, NothingIsTestedWithoutTheFlag)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes)
        for (const char* const name : {"missing", "sub", "a.txt", "nowhere/a.txt"})
            EXPECT_EQ(during(ask, {}, [&](Shown box) { choose(box, name); }), chosen(name));
}

GUI_TEST(FileBoxChecks, FilesThatExistCanBeOpened)
{
    const FileTree tree;
    EXPECT_EQ(during(openFile, {.flag = 1}, [](Shown box) { choose(box, "a.txt"); }),
              chosen("a.txt"));
    EXPECT_EQ(mkfifo(tree.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(during(openFile, {.flag = 1}, [](Shown box) { choose(box, "pipe"); }),
              chosen("pipe"));
}

GUI_TEST(FileBoxChecks, LinksAreWhatTheyLeadTo)
{
    const FileTree tree;
    fs::create_symlink("a.txt", tree.path("to_file"));
    fs::create_symlink("sub", tree.path("to_directory"));
    fs::create_symlink("nothing", tree.path("to_nothing"));
    EXPECT_EQ(during(openFile, {.flag = 1}, [](Shown box) { choose(box, "to_file"); }),
              chosen("to_file"));
    expectRefused(openFile, {.flag = 1}, "to_directory", kDirectory);
    expectRefused(openFile, {.flag = 1}, "to_nothing", kMissing);
    EXPECT_EQ(during(saveFile, {.flag = 1}, [](Shown box) { choose(box, "to_nothing"); }),
              chosen("to_nothing"));
}

GUI_TEST(FileBoxChecks, FileThatVanishesIsMissing)
{
    const FileTree tree;
    script.inOrder({script.shown("v_filebox",
                                 [&](Shown box) {
                                     clickEntry(box, XmDIALOG_LIST, tree.path("a.txt"));
                                     fs::remove(tree.path("a.txt"));
                                     box.click("OK");
                                 }),
                    script.shown("v_infobox",
                                 [](Shown message) {
                                     EXPECT_EQ(message.message(), kMissing);
                                     message.click("OK");
                                 }),
                    fileBoxAgain([&](Shown box) {
                        EXPECT_EQ(selectionOf(box), tree.path("a.txt"));
                        choose(box, tree.path("b.txt"));
                    })});
    EXPECT_EQ(openFile({.flag = 1}), chosen(tree.path("b.txt")));
}

GUI_TEST(FileBoxChecks, OverwritingIsAskedFor)
{
    const FileTree tree;
    for (const int confirm : {1, -1}) {
        Widget box = nullptr;
        script.inOrder({script.shown("v_filebox",
                                     [&](Shown shown) {
                                         box = shown.widget();
                                         choose(shown, "a.txt");
                                     }),
                        script.shown("v_askbox", [&](Shown question) {
                            EXPECT_EQ(question.message(), "File exists. Overwrite?");
                            EXPECT_EQ(XtParent(question.shell()), box);
                            EXPECT_TRUE(isShown(box));
                            question.click("Yes");
                        })});
        EXPECT_EQ(saveFile({.flag = confirm}), chosen("a.txt"));
    }
}

// No and the close request of the question; then another file.
GUI_TEST(FileBoxChecks, OverwritingCanBeDeclined)
{
    const FileTree tree;
    script.inOrder(
        {script.shown("v_filebox", [](Shown box) { choose(box, "a"); }),
         script.shown("v_askbox", [](Shown question) { question.click("No"); }),
         fileBoxAgain([](Shown box) {
             EXPECT_EQ(selectionOf(box), "a") << "without the extension";
             choose(box, "b.txt");
         }),
         script.shown("v_askbox", [](Shown question) { question.closeByWindowManager(); }),
         fileBoxAgain([](Shown box) { choose(box, "new"); })});
    EXPECT_EQ(saveFile({.extension = "txt", .flag = 1}), chosen("new.txt"));
}

GUI_TEST(FileBoxChecks, NewFilesAreWrittenWithoutAQuestion)
{
    const FileTree tree;
    for (const std::string& name :
         {std::string{"new"}, tree.path("sub/new"), std::string{"nowhere/new"}})
        EXPECT_EQ(during(saveFile, {.flag = 1}, [&](Shown box) { choose(box, name); }),
                  chosen(name));
}

// First the end of the path, then the extension, then the test.
GUI_TEST(FileBoxChecks, GivingUpComesBeforeTheTests)
{
    const FileTree tree;
    for (FileAsk const ask : kBothBoxes)
        for (const char* const name : {"", "sub/", "missing/"})
            EXPECT_EQ(during(ask, {.flag = 1}, [&](Shown box) { choose(box, name); }), kNothing);
}

// What does not fit is tested all the same.
GUI_TEST(FileBoxChecks, ComeBeforeTheFit)
{
    const FileTree tree;
    expectRefused(openFile, {.flag = 1, .size = 3}, "missing", kMissing);
    EXPECT_EQ(during(openFile, {.flag = 1, .size = 3}, [](Shown box) { choose(box, "a.txt"); }),
              kNothing);
}
