// guiSetText on edits and multi-line texts.

#include <Xm/Text.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

std::string everyByte()
{
    std::string bytes;
    for (int c = 0x20; c < 0x100; ++c)
        if (c < 0x7F || c >= 0xA0) bytes += static_cast<char>(c);
    return bytes;
}

void expectWhole(const std::vector<int>& ids, const std::string& text)
{
    for (const int id : ids) {
        guiSetText(id, text.c_str());
        EXPECT_EQ(textOf(innerOf(id)) == text, true) << id << ", " << text.size() << " bytes";
    }
}

}  // namespace

GUI_TEST(EditText, IsSetWhole)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   makeText(MultiLine, "before");
                   for (const std::string& text :
                        {std::string{}, std::string{"abc"}, std::string{"a & b && c"},
                         std::string(255, 'a'), std::string(256, 'b'), std::string(300, 'c'),
                         std::string(5000, 'd'), everyByte()})
                       expectWhole({Edit, MultiLine}, text);
                   expectWhole({MultiLine}, "one\ntwo\n\nfour\n");
               }});
}

GUI_TEST(EditText, SetAgainIsStillThere)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   makeText(MultiLine);
                   for (int i = 0; i < 3; ++i) expectWhole({Edit, MultiLine}, "same");
               }});
}

GUI_TEST(EditText, CanBeSetWhereTheUserMayNotChangeIt)
{
    runDialog({.build = [] { guiEdit(Edit, 0, 0, 60, 0, 1); },
               .fill = [] { expectWhole({Edit}, "read only"); }});
}

GUI_TEST(EditText, BeyondTheLongestThatCanBeTypedIsSet)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   guiSetRange(Edit, 0, 3);
                   expectWhole({Edit}, "abcdef");
               }});
}

GUI_TEST(EditText, TypingGoesOnFromThere)
{
    runDialog({.build = buildSimpleKinds, .look = [](Shown dialog) {
                   guiSetText(Edit, "abc");
                   dialog.key(XK_End);
                   dialog.type("d");
                   EXPECT_EQ(textOf(innerOf(Edit)), "abcd");
                   guiSetText(Edit, "");
                   dialog.type("x");
                   EXPECT_EQ(textOf(innerOf(Edit)), "x");
               }});
}

GUI_TEST(EditText, ASelectionIsGoneWithItsText)
{
    runDialog({.build = buildSimpleKinds, .look = [](Shown) {
                   makeText(MultiLine, "abc\ndef");
                   XmTextSetSelection(innerOf(MultiLine), 1, 5,
                                      XtLastTimestampProcessed(XtDisplay(board())));
                   EXPECT_EQ(guiGetTextLen(MultiLine), 4);
                   guiSetText(MultiLine, "new text");
                   EXPECT_EQ(guiGetTextLen(MultiLine), 0);
               }});
}

// One line of a million bytes is more than a drawing request may hold.
GUI_TEST(EditText, OfAMegabyteIsSurvived)
{
    const std::string text(1 << 20, 'w');
    runDialog({.build = buildSimpleKinds, .look = [&](Shown dialog) {
                   makeText(MultiLine);
                   expectWhole({Edit, MultiLine}, text);
                   EXPECT_EQ(guiGetTextLen(Edit), 1 << 20);
                   settle();
                   dialog.key(XK_End);
                   dialog.type("x");
                   EXPECT_EQ(guiGetTextLen(Edit), (1 << 20) + 1);
                   expectWhole({Edit, MultiLine}, "short");
               }});
}
