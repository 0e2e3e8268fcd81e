// The widths of the buttons, next to those of a box as the toolkit makes it.

#include "box_kinds.h"

using namespace kite::testing;

namespace {

void setLabel(Widget widget, const std::string& label)
{
    XmString const text = XmStringCreateLocalized(const_cast<char*>(label.c_str()));
    XtVaSetValues(widget, XmNlabelString, text, nullptr);
    XmStringFree(text);
}

// Of a bare button with this label, in the font of the status line.
int naturalWidth(const BareBox& bare, unsigned char which, const std::string& label)
{
    Widget const button = bare.part(which);
    setLabel(button, label);
    XtVaSetValues(button, XmNfontList, resource<XmFontList>(findWidget("v_sline"), XmNfontList),
                  nullptr);
    return resource<Dimension>(button, XmNwidth);
}

int expectedWidth(const BoxKind& kind)
{
    const BareBox bare{kind};
    const std::string& first = kind.choices.front().label;
    if (kind.width == BoxKind::Width::TripleOk)
        return 3 * naturalWidth(bare, XmDIALOG_OK_BUTTON, first);
    return naturalWidth(bare, XmDIALOG_CANCEL_BUTTON, kind.choices.back().label);
}

void expectWidths(const BoxKind& kind)
{
    const int expected = expectedWidth(kind);
    ASSERT_GT(expected, 10);
    whileShown(kind, [&](Shown box) {
        const std::vector<Widget> buttons = buttonsOf(box.widget());
        ASSERT_EQ(buttons.size(), kind.choices.size());
        for (Widget const button : buttons) {
            EXPECT_EQ(resource<Dimension>(button, XmNwidth), expected) << labelOf(button);
            EXPECT_EQ(rectOf(button).width, expected) << labelOf(button) << " on the screen";
        }
    });
}

}  // namespace

GUI_TEST(BoxButtonWidth, InfoTriplesOk)
{
    expectWidths(boxKind("guiInfoBox"));
}

GUI_TEST(BoxButtonWidth, ErrorTriplesOk)
{
    expectWidths(boxKind("guiErrorBox"));
}

GUI_TEST(BoxButtonWidth, OkCancelIsAsWideAsCancel)
{
    expectWidths(boxKind("guiOkCancelBox"));
}

GUI_TEST(BoxButtonWidth, YesNoTriplesYes)
{
    expectWidths(boxKind("guiYesNoBox"));
}

GUI_TEST(BoxButtonWidth, YesNoCancelIsAsWideAsCancel)
{
    expectWidths(boxKind("guiYesNoCancelBox"));
}

GUI_TEST(BoxButtonWidth, PromptIsAsWideAsCancel)
{
    expectWidths(boxKind("guiGetTextBox"));
}

GUI_STARTUP_TEST(BoxButtonWidth, FollowsTheFont)
{
    host.profile().setString("fnamm", "-misc-fixed-medium-r-normal--20-200-75-75-c-100-iso8859-1");
    app.run([] {
        for (const BoxKind& kind : allBoxes()) expectWidths(kind);
    });
}

GUI_TEST(BoxButtonWidth, StaysBelowALongMessage)
{
    const int expected = expectedWidth(boxKind("guiYesNoCancelBox"));
    const std::string text(150, 'm');
    whileShown(
        boxKind("guiYesNoCancelBox"),
        [&](Shown box) {
            for (Widget const button : buttonsOf(box.widget()))
                EXPECT_EQ(rectOf(button).width, expected) << labelOf(button);
        },
        text.c_str());
}
