// There is no memory for the text of a multi-line text control.

#include "../output/no_memory.h"
#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

constexpr char kMessage[] = "GetLineCount: out of memory";

template <typename Call>
void exhausted(Call call)
{
    const Exhausted now;
    call();
}

}  // namespace

GUI_TEST(TextWithoutMemory, IsReportedByWhatScrollsIt)
{
    guiWriteLine("A line");
    runDialog({.fill = [] { makeText(MultiLine, std::string(kLarge, 'a')); },
               .look =
                   [](Shown) {
                       exhausted([] { EXPECT_MISUSE(guiSetTop(MultiLine, 1), kMessage); });
                       exhausted([] { EXPECT_MISUSE(guiSetPos(MultiLine, 1), kMessage); });
                       guiSetVisible(MultiLine, 1);  // events pass again
                       exhausted([] { EXPECT_EQ(guiGetTop(MultiLine), -1); });
                       EXPECT_EQ(guiGetTop(MultiLine), 0);
                   }});
}

// An index of its lines would need more memory than the text itself.
GUI_TEST(TextWithoutMemory, IsNotWantedForLines)
{
    for (int i = 0; i < 3; ++i) guiWriteLine("A line");
    const int lines = static_cast<int>(kLarge) / 2;
    runDialog(
        {.fill = [&] { makeText(MultiLine, std::string(static_cast<std::size_t>(lines), '\n')); },
         .look =
             [](Shown) {
                 exhausted([] {
                     guiSetTop(MultiLine, 2);
                     EXPECT_EQ(guiGetTop(MultiLine), 2);
                 });
             }});
}
