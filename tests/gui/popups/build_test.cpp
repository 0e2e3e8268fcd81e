// A popup menu before it is shown: what it is made of, and what it refuses.

#include <Xm/PushBG.h>
#include <Xm/RowColumn.h>
#include <Xm/SeparatoG.h>

#include <cstdint>

#include "popups_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

std::vector<std::intptr_t> numbers()
{
    std::vector<std::intptr_t> all;
    for (Widget const item : popupItems())
        all.push_back(reinterpret_cast<std::intptr_t>(resource<XtPointer>(item, XmNuserData)));
    return all;
}

std::vector<std::string> names()
{
    std::vector<std::string> all;
    for (Widget const item : popupItems()) all.emplace_back(XtName(item));
    return all;
}

void expectFreshPopupOf(Widget top)
{
    ASSERT_EQ(guiCreatePopMenu(), 1);
    ASSERT_NE(popup(), nullptr);
    EXPECT_EQ(resource<unsigned char>(popup(), XmNrowColumnType), XmMENU_POPUP);
    EXPECT_EQ(XtParent(shellOf(popup())), top);
    EXPECT_EQ(resource<Dimension>(popup(), XmNshadowThickness), 1);
    EXPECT_FALSE(XtIsManaged(popup()));
    EXPECT_TRUE(popupItems().empty());
}

void expectNoPopup()
{
    EXPECT_EQ(guiAppendPopMenu("Item"), 0);
    EXPECT_EQ(guiAppendPopMenu(nullptr), 0);
    EXPECT_EQ(guiSepPopMenu(), 0);
    EXPECT_EQ(guiShowPopMenu(0, 0, 0, 0), 0);
    EXPECT_EQ(guiShowPopMenu(1, 1, 1, 1), 0);
    EXPECT_EQ(popup(), nullptr);
}

}  // namespace

GUI_TEST(PopupBuild, IsAnEmptyMenuOfTheTopWindow)
{
    Widget const frame = app.find("v_mainwnd");
    expectFreshPopupOf(frame);
    runDialog([] { guiButton(1, 0, 0, 60, "Button", 0); },
              [](Shown dialog) { expectFreshPopupOf(dialog.widget()); });
    ASSERT_EQ(guiDialog(""), 0);
    expectFreshPopupOf(frame);
    guiClose(0);
    EXPECT_NE(popup(), nullptr) << "a dialog under construction is no top window";
}

GUI_TEST(PopupBuild, ItemsAreNumberedFromOneAndSeparatorsAreNot)
{
    buildPopup({"One", kSeparator, "Two", kSeparator, kSeparator, "Three"});
    EXPECT_THAT(names(),
                ElementsAre("v_mitem", "v_msep", "v_mitem", "v_msep", "v_msep", "v_mitem"));
    EXPECT_THAT(numbers(), ElementsAre(1, -1, 2, -1, -1, 3));
    for (Widget const item : popupItems()) {
        EXPECT_TRUE(XtIsManaged(item));
        if (std::string{XtName(item)} == "v_msep") {
            EXPECT_EQ(XtClass(item), xmSeparatorGadgetClass);
            continue;
        }
        EXPECT_EQ(XtClass(item), xmPushButtonGadgetClass);
        EXPECT_EQ(resource<Dimension>(item, XmNshadowThickness), 1);
    }
}

GUI_TEST(PopupBuild, LabelsAndMnemonicsAreMadeOfTheNames)
{
    const struct {
        const char *name, *label;
        KeySym mnemonic;
    } rows[] = {
        {"Plain", "Plain", XK_VoidSymbol},
        {"&Open", "Open", XK_O},
        {"E&xit", "Exit", XK_x},
        {"Page &1", "Page 1", XK_1},
        {"&A &B", "A B", XK_A},
        {"R&&D", "RD", XK_VoidSymbol},
        {"&&D", "D", XK_VoidSymbol},
        {"Last&", "Last", XK_VoidSymbol},
        {"&-Dash", "-Dash", XK_VoidSymbol},
        {"& Space &x", " Space x", XK_VoidSymbol},
        {"\xE9t\xE9", "\xE9t\xE9", XK_VoidSymbol},
    };
    ASSERT_EQ(guiCreatePopMenu(), 1);
    for (const auto& [name, label, mnemonic] : rows) {
        SCOPED_TRACE(name);
        guiAppendPopMenu(name);
        Widget const item = popupItems().back();
        EXPECT_EQ(labelOf(item), label);
        EXPECT_EQ(resource<KeySym>(item, XmNmnemonic), mnemonic);
    }
}

GUI_TEST(PopupBuild, BadNamesAreRefusedAndTakeNoNumber)
{
    const std::string longest(63, 'x');
    const std::string tooLong(64, 'x');
    const std::string tooLongWithMark = "&" + longest;
    ASSERT_EQ(guiCreatePopMenu(), 1);
    guiAppendPopMenu("First");
    for (const char* const name :
         {static_cast<const char*>(nullptr), "", tooLong.c_str(), tooLongWithMark.c_str()})
        EXPECT_MISUSE(guiAppendPopMenu(name), "MenuItem: invalid name");
    EXPECT_THAT(numbers(), ElementsAre(1));
    EXPECT_TRUE(errorsDuring([&] { guiAppendPopMenu(longest.c_str()); }).empty());
    EXPECT_TRUE(errorsDuring([&] { guiAppendPopMenu("x"); }).empty());
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 3));
    EXPECT_EQ(labelOf(popupItems()[1]), longest);
}

GUI_TEST(PopupBuild, EarlierMenuIsForgottenWithItsItems)
{
    buildPopup({"A", kSeparator, "B"});
    Widget const first = popup();
    ASSERT_NE(first, nullptr);
    buildPopup({"C", "D"});
    settle();
    EXPECT_EQ(findWidgets("p_menu").size(), 1U);
    EXPECT_THAT(numbers(), ElementsAre(1, 2));
    EXPECT_EQ(labelOf(popupItems().front()), "C");
    app.whenShown("p_menu", picking("D"));
    EXPECT_EQ(guiShowPopMenu(0, 0, 0, 0), 2);
}

GUI_TEST(PopupBuild, NothingHappensWithoutAMenu)
{
    EXPECT_TRUE(errorsDuring(expectNoPopup).empty()) << "never created";
    EXPECT_EQ(runPopup(picking("Two")), 2);
    EXPECT_TRUE(errorsDuring(expectNoPopup).empty()) << "shown already";
    runDialog([] { guiButton(1, 0, 0, 60, "Button", 0); }, [](Shown) { buildPopup(); });
    ASSERT_TRUE(isPopupGone());
    EXPECT_TRUE(errorsDuring(expectNoPopup).empty()) << "gone with its dialog";
    EXPECT_TRUE(recorder.events(GUI_EVENT_COMMAND).empty());
}

GUI_STARTUP_TEST(PopupBuild, NeedsATopWindow)
{
    EXPECT_EQ(guiCreatePopMenu(), 0) << "before guiInit";
    expectNoPopup();
    app.run([] {
        buildPopup();
        guiClose(0);
        EXPECT_EQ(guiCreatePopMenu(), 0) << "when the frame is closed";
        EXPECT_EQ(guiAppendPopMenu("Item"), 0);
        EXPECT_EQ(guiSepPopMenu(), 0);
        EXPECT_EQ(guiShowPopMenu(0, 0, 0, 0), 0);
    });
}
