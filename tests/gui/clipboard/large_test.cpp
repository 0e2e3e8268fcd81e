// A megabyte on the clipboard.

#include <X11/Xatom.h>
#include <Xm/TextF.h>

#include "connection.h"
#include "operations/dialog_plan.h"
#include "text_kinds.h"

using namespace kite::testing;

namespace {

constexpr std::size_t kLines = 10000;

// Lines of 100 bytes with their line ends.
std::string megabyte()
{
    std::string text;
    for (std::size_t line = 1; line <= kLines; ++line) {
        const std::string number = std::to_string(line);
        text += number + std::string(99 - number.size(), '.') + '\n';
    }
    return text;
}

}  // namespace

GUI_TEST(LargeClipboard, OfAnotherClientIsReadWhole)
{
    const std::string text = megabyte();
    const Owner owner{{"xclip", "-i", "-selection", "clipboard", "-quiet"}, text};
    EXPECT_EQ(guiClipLines(), static_cast<int>(kLines));
    EXPECT_EQ(clipLine(kLines).substr(0, 6), "10000.");
    EXPECT_EQ(clipLine(kLines + 1), "[-1]");

    Widget const output = app.find("v_text");
    guiPasteSel(output);
    EXPECT_TRUE(textOf(output) == text);

    guiCopyAppText("and one");
    EXPECT_TRUE(pastedByXclip() == text + "and one\n");
    EXPECT_EQ(guiClipLines(), static_cast<int>(kLines) + 1);
    EXPECT_EQ(clipLine(kLines + 1), "and one");
    EXPECT_TRUE(isClipboardFree());
}

// Fields of one line draw all of it at once: more of it than a server takes would end the process.
GUI_TEST(LargeClipboard, IsCutToWhatAFieldCanShow)
{
    constexpr std::size_t kMost = 250000;
    const Owner owner{{"xclip", "-i", "-selection", "clipboard", "-quiet"},
                      std::string(400000, 'x')};
    withTexts([&](Widget text) {
        XmTextSetString(text, const_cast<char*>("one"));
        guiPasteSel(text);
        EXPECT_EQ(textOf(text).size(), XmIsTextField(text) ? kMost : 400003U);
        guiPasteSel(text);
        EXPECT_EQ(textOf(text).size(), XmIsTextField(text) ? kMost : 800003U);
        settle();
    });
}

// Nor does what mouse button 2 puts there.
GUI_TEST(LargeClipboard, OfTheMouseIsTooLargeForCombos)
{
    const auto pasted = [](std::size_t size) {
        const Process owner{
            {"xclip", "-i", "-selection", "primary", "-quiet"}, {}, std::string(size, 'x') + "|"};
        EXPECT_TRUE(pumpUntil([] { return XGetSelectionOwner(connection(), XA_PRIMARY) != None; }));
        std::size_t result = 0;
        runDialog({.build = [] { guiCombo(1, 0, 0, 80); },
                   .look =
                       [&](Shown) {
                           Widget const field = resource<Widget>(innerOf(1), XmNtextField);
                           Robot::instance().click(field, MiddleButton);
                           (void)pumpUntil([&] { return !textOf(field).empty(); },
                                           milliseconds{3000});
                           result = textOf(field).size();
                       }});
        return result;
    };
    EXPECT_EQ(pasted(200), 201U);
    EXPECT_EQ(pasted(400000), 0U);
}
