// There is no memory for an operation on items or lines.

#include <Xm/List.h>

#include "../output/no_memory.h"
#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

constexpr int kMany = static_cast<int>(kLarge / sizeof(int));  // indexes

template <typename Call>
std::vector<std::string> errorsWithoutMemory(Call call)
{
    return errorsDuring([&] {
        const Exhausted now;
        call();
    });
}

// At once, and each the same.
void fillList(Widget list, const std::string& item, int count)
{
    XmString const string = XmStringCreateLocalized(const_cast<char*>(item.c_str()));
    std::vector<XmString> items(static_cast<std::size_t>(count), string);
    XtVaSetValues(list, XmNitems, items.data(), XmNitemCount, count, nullptr);
    XmStringFree(string);
}

}  // namespace

GUI_TEST(ItemWithoutMemory, LinesAreNotRead)
{
    runDialog({.fill = [] { makeText(MultiLine, std::string(kLarge, 'a')); },
               .look =
                   [](Shown) {
                       char buffer[4] = "xyz";
                       for (const int line : {-1, 0}) {
                           EXPECT_THAT(errorsWithoutMemory([&] {
                                           EXPECT_EQ(guiGetLine(MultiLine, line, buffer, 4), -1);
                                       }),
                                       ElementsAre("GetLine: out of memory"));
                           EXPECT_STREQ(buffer, "");
                       }
                       EXPECT_THAT(
                           errorsWithoutMemory([] { EXPECT_EQ(guiGetLineCount(MultiLine), -1); }),
                           ElementsAre("GetLineCount: out of memory"));
                       EXPECT_EQ(guiGetLineCount(MultiLine), 1) << "there is memory again";
                   }});
}

GUI_TEST(ItemWithoutMemory, ALineIsNotAppended)
{
    runDialog({.fill = [] { makeText(MultiLine, "one\n"); },
               .look =
                   [](Shown) {
                       const std::string large(kLarge, 'a');
                       EXPECT_THAT(
                           errorsWithoutMemory([&] { guiAppendLine(MultiLine, large.c_str()); }),
                           ElementsAre("AppendLine: out of memory"));
                       EXPECT_EQ(textOf(innerOf(MultiLine)), "one\n");
                   }});
}

GUI_TEST(ItemWithoutMemory, TheLengthOfAnItemIsNotKnown)
{
    runDialog({.fill = [] { fillList(makeList(List), std::string(2 * kLarge, 'a'), 1); },
               .look =
                   [](Shown) {
                       EXPECT_THAT(
                           errorsWithoutMemory([] { EXPECT_EQ(guiGetItemLen(List, 0), -1); }),
                           ElementsAre("GetItemLen: out of memory"));
                       EXPECT_EQ(guiGetItemLen(List, 0), static_cast<int>(2 * kLarge));
                   }});
}

GUI_TEST(ItemWithoutMemory, TheLastOfManySelectedItemsIsNotFound)
{
    runDialog({.fill = [] { fillList(makeList(List, {}, XmMULTIPLE_SELECT), "a", kMany); },
               .look =
                   [](Shown) {
                       guiSelAll(List);
                       ASSERT_EQ(guiGetSelCount(List), kMany);
                       EXPECT_THAT(errorsWithoutMemory(
                                       [] { EXPECT_EQ(guiGetNthSel(List, kMany - 1), -1); }),
                                   ElementsAre("GetNthSel: out of memory"));
                       EXPECT_EQ(guiGetNthSel(List, kMany - 1), kMany - 1);
                   }});
}

GUI_TEST(ItemWithoutMemory, ALineIsNotSelected)
{
    runDialog({.fill = [] { makeText(MultiLine, std::string(kLarge, 'a')); },
               .look =
                   [](Shown) {
                       EXPECT_THAT(errorsWithoutMemory([] { guiSetSel(MultiLine, 0); }),
                                   ElementsAre("GetLine: out of memory"));
                   }});
}
