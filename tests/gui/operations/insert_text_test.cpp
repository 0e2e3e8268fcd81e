// guiInsertText.

#include <Xm/Text.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"
#include "probe.h"

using namespace kite::testing;

namespace {

std::optional<std::pair<long, long>> selectionOf(Widget text)
{
    XmTextPosition left = 0;
    XmTextPosition right = 0;
    if (!XmTextGetSelectionPosition(text, &left, &right) || left == right) return std::nullopt;
    return std::pair{left, right};
}

void withText(const std::string& start, const std::function<void(Widget text)>& body)
{
    runDialog({.build = buildProbe,
               .fill = [&] { makeText(MultiLine, start); },
               .look = [&](Shown) { body(innerOf(MultiLine)); }});
}

void select(Widget text, long from, long to)
{
    XmTextSetSelection(text, from, to, XtLastTimestampProcessed(XtDisplay(text)));
    ASSERT_EQ(selectionOf(text), std::pair(from, to));
}

}  // namespace

GUI_TEST(InsertText, AtTheInsertionPoint)
{
    withText("abcdef", [](Widget text) {
        XmTextSetInsertionPosition(text, 3);
        guiInsertText(MultiLine, "1\n2");
        EXPECT_EQ(textOf(text), "abc1\n2def");
        EXPECT_EQ(XmTextGetInsertionPosition(text), 6);
        EXPECT_EQ(selectionOf(text), std::nullopt);
        guiInsertText(MultiLine, "3");
        EXPECT_EQ(textOf(text), "abc1\n23def");
        EXPECT_EQ(XmTextGetInsertionPosition(text), 7);
    });
}

GUI_TEST(InsertText, InPlaceOfTheSelection)
{
    withText("abcdef", [](Widget text) {
        select(text, 1, 4);
        guiInsertText(MultiLine, "longer & more");
        EXPECT_EQ(textOf(text), "alonger & moreef");
        EXPECT_EQ(XmTextGetInsertionPosition(text), 14);
        EXPECT_EQ(selectionOf(text), std::pair(1L, 14L)) << "the inserted text is selected";
        guiInsertText(MultiLine, "x");
        EXPECT_EQ(textOf(text), "axef") << "so that it is replaced by the next";
        EXPECT_EQ(selectionOf(text), std::pair(1L, 2L));
    });
}

GUI_TEST(InsertText, NothingDeletesTheSelection)
{
    withText("abcdef", [](Widget text) {
        for (const char* const nothing : {static_cast<const char*>(nullptr), ""}) {
            const std::string before = textOf(text);
            select(text, 0, 2);
            guiInsertText(MultiLine, nothing);
            EXPECT_EQ(textOf(text), before.substr(2));
            EXPECT_EQ(XmTextGetInsertionPosition(text), 0);
            EXPECT_EQ(selectionOf(text), std::nullopt);
        }
    });
}

GUI_TEST(InsertText, NothingWithoutASelectionChangesNothing)
{
    withText("abcdef", [](Widget text) {
        XmTextSetInsertionPosition(text, 2);
        guiInsertText(MultiLine, nullptr);
        EXPECT_EQ(textOf(text), "abcdef");
        EXPECT_EQ(XmTextGetInsertionPosition(text), 2);
    });
}

GUI_TEST(InsertText, IntoAnEmptyText)
{
    withText("", [](Widget text) {
        guiInsertText(MultiLine, "\xC4pfel\n");
        EXPECT_EQ(textOf(text), "\xC4pfel\n");
        EXPECT_EQ(XmTextGetInsertionPosition(text), 6);
    });
}

GUI_TEST(InsertText, RaisesNoEvent)
{
    withText("abc", [](Widget text) {
        const ProbeOnChange change{text, XmNvalueChangedCallback};
        const ProbeOnChange motion{text, XmNmotionVerifyCallback};
        guiInsertText(MultiLine, "def");
        EXPECT_GT(change.changes(), 0);
        EXPECT_GT(motion.changes(), 0);
        EXPECT_EQ(change.passed() + motion.passed(), 0);
        EXPECT_TRUE(doEventsPass());
    });
}
