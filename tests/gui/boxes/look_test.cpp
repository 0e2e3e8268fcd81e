// What a box is, and which parts of it are shown.

#include "box_kinds.h"

#include <Xm/MwmUtil.h>
#include <Xm/PushB.h>
#include <Xm/PushBG.h>

using namespace kite::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::SizeIs;

namespace {

std::vector<std::string> labelsOf(const std::vector<Widget>& widgets)
{
    std::vector<std::string> labels;
    for (Widget const widget : widgets) labels.push_back(labelOf(widget));
    return labels;
}

std::vector<std::string> labelsOf(const BoxKind& kind)
{
    std::vector<std::string> labels;
    for (const Choice& choice : kind.choices) labels.push_back(choice.label);
    return labels;
}

}  // namespace

GUI_TEST(BoxLook, EachBoxHasItsKind)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [&](Shown box) {
            EXPECT_EQ(resource<unsigned char>(box.widget(), XmNdialogType), kind.type);
            EXPECT_TRUE(XtIsManaged(box.widget()));
        });
}

GUI_TEST(BoxLook, BoxBelongsToTheMainWindow)
{
    Widget const main = app.find("v_mainwnd");
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [&](Shown box) {
            EXPECT_EQ(XtParent(box.shell()), main);
            EXPECT_EQ(wm::transientFor(box.widget()), windowOf(app.shell()));
        });
}

GUI_TEST(BoxLook, BoxIsModalForTheWholeApplication)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [](Shown box) {
            EXPECT_EQ(resource<unsigned char>(box.widget(), XmNdialogStyle),
                      XmDIALOG_FULL_APPLICATION_MODAL);
            const auto hints = wm::itemsOf(windowOf(box.shell()), "_MOTIF_WM_HINTS");
            ASSERT_THAT(hints, SizeIs(5));
            EXPECT_EQ(hints[3], MWM_INPUT_FULL_APPLICATION_MODAL);
        });
}

GUI_TEST(BoxLook, BoxCannotBeResized)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [](Shown box) {
            EXPECT_TRUE(resource<Boolean>(box.widget(), XmNnoResize));
            const auto hints = wm::itemsOf(windowOf(box.shell()), "_MOTIF_WM_HINTS");
            ASSERT_THAT(hints, SizeIs(5));
            EXPECT_FALSE(hints[1] & MWM_FUNC_ALL) << "a list of what is left out";
            EXPECT_FALSE(hints[1] & MWM_FUNC_RESIZE);
        });
}

GUI_TEST(BoxLook, CloseRequestsAreLeftToTheLibrary)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [](Shown box) {
            EXPECT_THAT(wm::protocolsOf(box.widget()), Contains("WM_DELETE_WINDOW"));
            EXPECT_EQ(resource<unsigned char>(box.shell(), XmNdeleteResponse), XmDO_NOTHING);
        });
}

GUI_TEST(BoxLook, SeparatorAndHelpAreGone)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [](Shown box) {
            EXPECT_FALSE(isShown(partOf(box.widget(), XmDIALOG_SEPARATOR)));
            EXPECT_FALSE(isShown(partOf(box.widget(), XmDIALOG_HELP_BUTTON)));
        });
}

GUI_TEST(BoxLook, ButtonsStandInTheirOrder)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [&](Shown box) {
            EXPECT_THAT(labelsOf(buttonsOf(box.widget())), ElementsAreArray(labelsOf(kind)));
        });
}

GUI_TEST(BoxLook, OnlyYesAndNoAreLabelsOfTheLibrary)
{
    for (const BoxKind& kind : allBoxes()) {
        const BareBox bare{kind};
        const std::string ok = labelOf(bare.part(XmDIALOG_OK_BUTTON));
        const std::string cancel = labelOf(bare.part(XmDIALOG_CANCEL_BUTTON));
        whileShown(kind, [&](Shown box) {
            const bool asksYesNo = kind.choices.front().label == "Yes";
            EXPECT_EQ(labelOf(partOf(box.widget(), XmDIALOG_OK_BUTTON)), asksYesNo ? "Yes" : ok);
            EXPECT_EQ(labelOf(partOf(box.widget(), XmDIALOG_CANCEL_BUTTON)),
                      kind.call == "guiYesNoBox" ? "No" : cancel);
        });
    }
}

// The toolkit shows additional buttons behind OK.
GUI_TEST(BoxLook, NoOfYesNoCancelIsAButtonOfItsOwn)
{
    whileShown(boxKind("guiYesNoCancelBox"), [](Shown box) {
        Widget const no = box.child("v_nopbtn");
        ASSERT_TRUE(no);
        EXPECT_TRUE(XmIsPushButton(no));
        EXPECT_EQ(XtParent(no), box.widget());
        EXPECT_EQ(labelOf(no), "No");
        EXPECT_THAT(buttonsOf(box.widget()),
                    ElementsAre(partOf(box.widget(), XmDIALOG_OK_BUTTON), no,
                                partOf(box.widget(), XmDIALOG_CANCEL_BUTTON)));
    });
}

GUI_TEST(BoxLook, ButtonsAreOneStraightRow)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [](Shown box) {
            const std::vector<Widget> buttons = buttonsOf(box.widget());
            const Rect first = rectOf(buttons.front());
            for (Widget const button : buttons) {
                EXPECT_EQ(rectOf(button).y, first.y) << labelOf(button);
                EXPECT_EQ(rectOf(button).height, first.height) << labelOf(button);
            }
        });
}

GUI_TEST(BoxLook, NothingIsCutOffByTheEdgesOfTheBox)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [](Shown box) {
            const Rect whole = rectOf(box.widget());
            for (Widget const child : childrenOf(box.widget())) {
                if (!isShown(child)) continue;
                const Rect part = rectOf(child);
                EXPECT_TRUE(whole.contains({part.x, part.y})) << XtName(child) << ' ' << part;
                EXPECT_TRUE(whole.contains({part.right() - 1, part.bottom() - 1}))
                    << XtName(child) << ' ' << part;
            }
        });
}

GUI_TEST(BoxLook, ButtonsHaveShadowTwoAndHighlightOne)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(kind, [](Shown box) {
            for (Widget const button : buttonsOf(box.widget())) {
                EXPECT_EQ(resource<Dimension>(button, XmNshadowThickness), 2) << labelOf(button);
                EXPECT_EQ(resource<Dimension>(button, XmNhighlightThickness), 1) << labelOf(button);
            }
        });
}

GUI_TEST(BoxLook, NothingIsLeftOfAnAnsweredBox)
{
    for (const BoxKind& kind : allBoxes()) whileShown(kind, [](Shown) {});
    const int before = widgetCount();
    for (const BoxKind& kind : allBoxes()) {
        whileShown(kind, [](Shown) {});
        EXPECT_FALSE(findWidget(kind.widget)) << kind.call;
    }
    EXPECT_EQ(widgetCount(), before);
}
