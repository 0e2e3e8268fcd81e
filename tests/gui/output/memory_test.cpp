// What a host is told when there is no memory.

#include "no_memory.h"
#include "output_support.h"

using namespace kite::testing;

namespace {

void fill(char byte)
{
    setOutput(std::string(kLarge, byte));
}

}  // namespace

GUI_TEST(OutOfMemory, IsReportedByEveryReader)
{
    fill('a');
    char buffer[] = "####";
    {
        const Exhausted memory;
        EXPECT_MISUSE(guiOutputLineCount(), "GetLineCount: out of memory", -1);
        EXPECT_MISUSE(guiOutputLine(0, buffer, sizeof buffer), "GetLine: out of memory", -1);
        EXPECT_STREQ(buffer, "");
        EXPECT_MISUSE(guiGetCurPos(0), "GetLineCount: out of memory", -1);
        EXPECT_MISUSE(guiGetCurLine(0), "GetLineCount: out of memory", -1);
        EXPECT_MISUSE(guiSaveOutput("saved"), "SaveOutput: out of memory", -1);
        EXPECT_EQ(guiOutputLine(-1, buffer, sizeof buffer), -1) << "before the text is fetched";
    }
    EXPECT_EQ(contentsOf("saved"), "");
    EXPECT_EQ(guiOutputLineCount(), 1);
}

// There is room for the text, and none for where its lines begin.
GUI_TEST(OutOfMemory, ForTheLinesIsReportedToo)
{
    setOutput(std::string(kLarge - 100, '\n'));
    {
        const Exhausted memory;
        EXPECT_MISUSE(guiOutputLineCount(), "GetLineCount: out of memory", -1);
    }
    EXPECT_EQ(resource<XtPointer>(outputText(), XmNuserData), nullptr);
    EXPECT_EQ(guiOutputLineCount(), static_cast<int>(kLarge) - 100);
}

// The number of lines is not known then, and no line is below -1.
GUI_TEST(OutOfMemory, SelectsNothing)
{
    fill('a');
    const Exhausted memory;
    EXPECT_MISUSE(guiSelOutputLine(1, 0, -1), "GetLineCount: out of memory", 0);
    EXPECT_EQ(outputSelection(), kNothing);
}

GUI_STARTUP_TEST(OutOfMemory, WritesNoLine)
{
    host.profile().setInt("logfm", 1);
    app.run([] {
        const std::string long_(kLarge, 'x');
        const std::string log = contentsOf("output.log");
        guiWriteText("a");
        {
            const Exhausted memory;
            EXPECT_MISUSE(guiWriteLine(long_.c_str()), "WriteLine: out of memory");
        }
        EXPECT_EQ(output(), "a");
        EXPECT_EQ(contentsOf("output.log"), log + "a");
        guiWriteLine(long_.c_str());
        EXPECT_EQ(output().size(), kLarge + 2);
    });
}
