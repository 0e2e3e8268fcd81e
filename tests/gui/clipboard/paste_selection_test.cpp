// What is on the clipboard, pasted into a text.

#include "operations/dialog_plan.h"
#include "text_kinds.h"

using namespace kite::testing;

namespace {

void fill(Widget text, XmTextPosition insertionPoint)
{
    XmTextSetString(text, const_cast<char*>("one two"));
    XmTextClearSelection(text, XtLastTimestampProcessed(XtDisplay(text)));
    XmTextSetInsertionPosition(text, insertionPoint);
}

}  // namespace

GUI_TEST(PasteSelection, InsertsWhatIsThere)
{
    // Inserts at the insertion point and leaves it there.
    {
        const Client client{{"own", "STRING", "XYZ", "COMPOUND_TEXT", "compound"}};
        withTexts([&](Widget text) {
            for (const XmTextPosition position : {0, 3, 7}) {
                fill(text, position);
                guiPasteSel(text);
                const auto place = static_cast<std::size_t>(position);
                EXPECT_EQ(textOf(text), std::string{"one two"}.insert(place, "XYZ"));
                EXPECT_EQ(XmTextGetInsertionPosition(text), position);
            }
        });
        EXPECT_TRUE(isClipboardFree());
    }

    // Takes the place of the selection.
    {
        const Client client{{"own", "STRING", "XYZ"}};
        withTexts([&](Widget text) {
            fill(text, 7);
            select(text, 4, 6);
            guiPasteSel(text);
            EXPECT_EQ(textOf(text), "one XYZo");
            EXPECT_EQ(XmTextGetInsertionPosition(text), 4);

            fill(text, 0);
            select(text, 0, 7);
            guiPasteSel(text);
            EXPECT_EQ(textOf(text), "XYZ");
            EXPECT_EQ(XmTextGetInsertionPosition(text), 0);
        });
    }

    // Removes it even when there is nothing to paste.
    {
        struct {
            std::vector<std::string> client;
        } const rows[] = {
            {{"own", "COMPOUND_TEXT", "compound"}}, {{"own", "STRING", ""}}, {{"own"}}};
        for (const auto& row : rows) {
            SCOPED_TRACE(::testing::PrintToString(row.client));
            const Client client{row.client};
            withTexts([&](Widget text) {
                fill(text, 3);
                guiPasteSel(text);
                EXPECT_EQ(textOf(text), "one two") << "without a selection";
                EXPECT_EQ(XmTextGetInsertionPosition(text), 3);

                select(text, 4, 7);
                guiPasteSel(text);
                EXPECT_EQ(textOf(text), "one ");
                EXPECT_EQ(XmTextGetInsertionPosition(text), 4);
            });
            EXPECT_TRUE(isClipboardFree());
        }
    }
}

// To the host's calls all texts are its own; only cutting is the user's.
GUI_TEST(PasteSelection, GoesIntoReadOnlyTexts)
{
    const Client client{{"own", "STRING", "XYZ"}};
    withTexts([&](Widget text) {
        fill(text, 0);
        XmTextSetEditable(text, False);
        select(text, 4, 6);
        guiPasteSel(text);
        EXPECT_EQ(textOf(text), "one XYZo");
        EXPECT_EQ(XmTextGetInsertionPosition(text), 4);
        XmTextSetEditable(text, True);
    });
}

GUI_TEST(PasteSelection, IsAChangeOfTheText)
{
    // Pastes what the library has copied.
    {
        Widget const output = app.find("v_text");
        withTexts([&](Widget text) {
            fill(text, 0);
            select(text, 0, 4);
            guiCutSel(text);
            XmTextSetInsertionPosition(text, 3);
            guiPasteSel(text);
            EXPECT_EQ(textOf(text), "twoone ");
            guiPasteSel(text);
            EXPECT_EQ(textOf(text), "twoone one ") << "as often as one likes";
        });
        guiCopyText("a\nb");
        XmTextSetString(output, const_cast<char*>("one two"));
        guiSelOutputLine(1, 0, -1);
        guiPasteSel(output);
        EXPECT_EQ(textOf(output), "a\nb\n");
        EXPECT_EQ(guiOutputLineCount(), 2);
    }

    // The host hears of it as of any change.
    {
        guiCopyText("abc");
        runDialog({.build = [] { guiEdit(1, 0, 0, 80, 0, 0); },
                   .look =
                       [&](Shown) {
                           recorder.clear();
                           guiPasteSel(innerOf(1));
                           EXPECT_EQ(recorder.events(GUI_EVENT_TEXT_CHANGED),
                                     std::vector{toDialog(GUI_EVENT_TEXT_CHANGED, 1, 1)});
                       }});
    }
}
