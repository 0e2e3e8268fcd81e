// Much text, and long lines.

#include <ctime>

#include "painting_support.h"

using namespace kite::testing;

namespace {

constexpr int kMegabyte = 1 << 20;

}  // namespace

GUI_TEST(LargeOutput, IsReadAndSavedToTheByte)
{
    constexpr int kLines = 100000;
    std::string all;
    for (int i = 0; i < kLines; ++i) all += "line " + std::to_string(i) + " \x80\xFF\n";
    guiWriteText(all.c_str());
    EXPECT_EQ(guiOutputLineCount(), kLines);
    EXPECT_EQ(guiGetCurLine(0), kLines + 1);
    EXPECT_EQ(guiGetCurPos(0), 0);
    const std::clock_t start = std::clock();
    char buffer[100];
    bool isSame = true;
    for (int i = 0; i < kLines; ++i) {
        guiOutputLine(i, buffer, sizeof buffer);
        isSame = isSame && buffer == "line " + std::to_string(i) + " \x80\xFF";
    }
    EXPECT_TRUE(isSame);
    // A walk over the text for every line would be minutes.
    EXPECT_LT(std::clock() - start, 10 * CLOCKS_PER_SEC);
    EXPECT_EQ(guiOutputLine(kLines, buffer, sizeof buffer), -1);
    EXPECT_EQ(guiSaveOutput("saved"), 0);
    EXPECT_EQ(contentsOf("saved"), all);
    guiWriteLine("last");
    EXPECT_EQ(line(kLines), "last");
    EXPECT_EQ(guiSelOutputLine(1, 0, -1), 1);
    EXPECT_EQ(outputSelection().right, static_cast<XmTextPosition>(all.size()) + 5);
    guiClearOutput();
    EXPECT_EQ(guiOutputLineCount(), 0);
}

// A request beyond the server's limit would end the process.
GUI_TEST(LargeOutput, LineOfAMegabyteIsPaintedToItsEnd)
{
    Widget const text = outputText();
    guiWriteText(std::string(kMegabyte, 'x').c_str());
    EXPECT_EQ(guiOutputLineCount(), 1);
    EXPECT_EQ(guiGetCurPos(0), kMegabyte);
    settle();
    const auto jump = [&](XmTextPosition position) {
        XmTextSetInsertionPosition(text, position);
        settle();
        return isPainted();
    };
    EXPECT_TRUE(jump(kMegabyte));
    EXPECT_TRUE(jump(0));
    EXPECT_TRUE(jump(kMegabyte / 2));
    EXPECT_EQ(guiSelOutputLine(1, 0, -1), 1);
    EXPECT_TRUE(jump(kMegabyte));
    guiWriteLine("!");
    std::vector<char> buffer(kMegabyte + 10);
    EXPECT_EQ(guiOutputLine(0, buffer.data(), static_cast<int>(buffer.size())), kMegabyte + 1);
    EXPECT_EQ(guiOutputLine(0, buffer.data(), 10), 9);
    EXPECT_STREQ(buffer.data(), "xxxxxxxxx");
}

// Not more: to wrap one line takes the toolkit a time that grows with the square of its length.
GUI_TEST(LargeOutput, LongLineIsWrapped)
{
    constexpr int kLength = 20000;
    guiWriteHTML(("<body wide=on>" + std::string(kLength, 'x')).c_str());
    settle();
    EXPECT_TRUE(isPainted());
    EXPECT_EQ(guiGetCurLine(0), 1);
    XmTextSetInsertionPosition(outputText(), 0);
    settle();
    EXPECT_TRUE(isPainted());
    EXPECT_EQ(guiOutputLineCount(), 1) << "wrapping makes no lines";
}
