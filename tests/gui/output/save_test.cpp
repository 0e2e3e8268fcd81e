// guiSaveOutput.

#include <filesystem>
#include <fstream>

#include "output_support.h"

using namespace kite::testing;

GUI_TEST(SaveOutput, WritesEverythingByteForByte)
{
    std::string bytes = "line\r\nno end \x80\xFF\n\n";
    for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
    for (const std::string& text : {bytes, std::string{}, std::string{"a"}, std::string{"a\n"}}) {
        setOutput(text);
        std::ofstream{"saved"} << "something longer than what comes to be written there" << bytes;
        EXPECT_EQ(guiSaveOutput("saved"), 0);
        EXPECT_EQ(contentsOf("saved"), text);
    }
}

GUI_TEST(SaveOutput, WritesOnlyTheSelection)
{
    setOutput("ab\ncd\n");
    selectOutput(1, 4);
    EXPECT_EQ(guiSaveOutput("saved"), 0);
    EXPECT_EQ(contentsOf("saved"), "b\nc");
    selectOutput(0, 6);
    EXPECT_EQ(guiSaveOutput("saved"), 0);
    EXPECT_EQ(contentsOf("saved"), "ab\ncd\n");
    selectOutput(2, 2);
    EXPECT_EQ(guiSaveOutput("saved"), 0);
    EXPECT_EQ(contentsOf("saved"), "ab\ncd\n") << "an empty selection is none";
    EXPECT_EQ(output(), "ab\ncd\n");
}

GUI_TEST(SaveOutput, NeedsAName)
{
    setOutput("a");
    EXPECT_MISUSE(guiSaveOutput(nullptr), "SaveOutput: invalid file name", -1);
    EXPECT_MISUSE(guiSaveOutput(""), "SaveOutput: invalid file name", -1);
}

GUI_TEST(SaveOutput, NeedsAFileThatCanBeWritten)
{
    setOutput("a");
    std::filesystem::create_directory("directory");
    for (const char* path : {"directory", "no/such/file", "/proc/nothing"})
        EXPECT_MISUSE(guiSaveOutput(path), "SaveOutput: cannot open the file", -1);
    EXPECT_EQ(output(), "a");
}

// Small texts fail when the file is closed, large ones when they are written.
GUI_TEST(SaveOutput, NeedsRoomOnTheDisk)
{
    for (const std::size_t size : {1U, 4096U, 1000000U}) {
        setOutput(std::string(size, 'x'));
        EXPECT_MISUSE(guiSaveOutput("/dev/full"), "SaveOutput: error writing the file", -1);
    }
    setOutput("");
    EXPECT_EQ(guiSaveOutput("/dev/full"), 0) << "there is nothing to write";
}

GUI_TEST(SaveOutput, ParksNothing)
{
    setOutput("a");
    static int mine;
    XtVaSetValues(outputText(), XmNuserData, &mine, nullptr);
    EXPECT_EQ(guiSaveOutput("saved"), 0);
    EXPECT_EQ(resource<XtPointer>(outputText(), XmNuserData), &mine);
}
