// The resources of the widgets, as the constructors leave them.

#include <Xm/ComboBox.h>
#include <Xm/List.h>

#include "list_controls_support.h"

using namespace kite::testing;

namespace {

enum Id { kList = 1, kChoice, kCombo, kLabel };

void build(int selectionMode = GUI_BROWSE)
{
    guiList(kList, 0, 4, 0, 80, selectionMode);
    guiChoice(kChoice, 4, 0, 80);
    guiCombo(kCombo, 5, 0, 80);
    guiLabel(kLabel, 6, 0, 80, "Label");  // in the dialog's font
}

void withControls(const std::function<void()>& look)
{
    ASSERT_EQ(guiDialog(""), 0);
    build();
    look();
    guiClose(0);
}

template <typename T>
void expectResource(Widget widget, const char* name, int expected)
{
    EXPECT_EQ(static_cast<int>(resource<T>(widget, name)), expected)
        << XtName(widget) << " " << name;
}

void expectBlackOnWhite(Widget widget)
{
    EXPECT_EQ(resource<Pixel>(widget, XmNforeground), BlackPixelOfScreen(XtScreen(widget)));
    EXPECT_EQ(resource<Pixel>(widget, XmNbackground), WhitePixelOfScreen(XtScreen(widget)));
}

// A copy of the toolkit's own has the same fonts.
XFontStruct* fontOf(Widget widget)
{
    XmFontContext context = nullptr;
    XmFontListEntry entry = nullptr;
    if (XmFontListInitFontContext(&context, resource<XmFontList>(widget, XmNfontList))) {
        entry = XmFontListNextEntry(context);
        XmFontListFreeFontContext(context);
    }
    XmFontType type = XmFONT_IS_FONT;
    return entry ? static_cast<XFontStruct*>(XmFontListEntryGetFont(entry, &type)) : nullptr;
}

}  // namespace

GUI_TEST(ListResources, OfAList)
{
    withControls([] {
        Widget const scrolled = controlOf(kList);
        expectResource<Dimension>(scrolled, XmNshadowThickness, 2);
        expectResource<Dimension>(scrolled, XmNspacing, 0);

        Widget const list = listOf(kList);
        expectResource<Dimension>(list, XmNshadowThickness, 0);
        expectResource<Dimension>(list, XmNhighlightThickness, 1);
        expectResource<unsigned char>(list, XmNlistSizePolicy, XmCONSTANT);
        expectBlackOnWhite(list);
        EXPECT_EQ(fontOf(list), fontOf(controlOf(kLabel)));
    });
}

GUI_TEST(ListResources, SelectionPolicyIsThatOfTheMode)
{
    const std::pair<int, int> modes[] = {{-32768, XmBROWSE_SELECT}, {-1, XmBROWSE_SELECT},
                                         {0, XmBROWSE_SELECT},      {1, XmEXTENDED_SELECT},
                                         {2, XmMULTIPLE_SELECT},    {3, XmMULTIPLE_SELECT},
                                         {32767, XmMULTIPLE_SELECT}};
    for (const auto& [mode, policy] : modes) {
        SCOPED_TRACE(mode);
        ASSERT_EQ(guiDialog(""), 0);
        build(mode);
        expectResource<unsigned char>(listOf(kList), XmNselectionPolicy, policy);
        guiClose(0);
    }
}

GUI_TEST(ListResources, OfTheScrollBars)
{
    withControls([] {
        Widget const scrolled = controlOf(kList);
        int bars = 0;
        for (const char* const name : {XmNverticalScrollBar, XmNhorizontalScrollBar}) {
            Widget const bar = resource<Widget>(scrolled, name);
            if (!bar) continue;
            ++bars;
            expectResource<Dimension>(bar, XmNshadowThickness, 2);
            expectResource<Dimension>(bar, XmNhighlightThickness, 0);
            for (const char* const colour : {XmNbackground, XmNforeground})
                EXPECT_EQ(resource<Pixel>(bar, colour), resource<Pixel>(newestBoard(), colour));
        }
        EXPECT_EQ(bars, 2);
    });
}

// It keeps its size, however many and however long its items are.
GUI_TEST(ListResources, ListDoesNotGrowWithItsItems)
{
    runDialog({.build = [] { build(); },
               .use =
                   [](Shown) {
                       const Rect before = placeOf(controlOf(kList));
                       appendItems(kList, 50);
                       guiAppendItem(kList, std::string(500, 'W').c_str());
                       settle();
                       EXPECT_TRUE(pumpUntil([&] { return placeOf(controlOf(kList)) == before; }));
                       EXPECT_LT(placeOf(listOf(kList)).width, before.width);
                   }});
}

GUI_TEST(ListResources, OfAChoiceAndACombo)
{
    withControls([] {
        const std::pair<int, int> kinds[] = {{kChoice, XmDROP_DOWN_LIST},
                                             {kCombo, XmDROP_DOWN_COMBO_BOX}};
        for (const auto& [id, type] : kinds) {
            SCOPED_TRACE(id);
            Widget const box = controlOf(id);
            expectResource<unsigned char>(box, XmNcomboBoxType, type);
            expectResource<Dimension>(box, XmNshadowThickness, 1);
            expectResource<Dimension>(box, XmNhighlightThickness, 1);
            expectResource<Dimension>(box, XmNmarginWidth, 1);
            expectResource<Dimension>(box, XmNmarginHeight, 1);

            Widget const list = listOf(id);
            expectResource<Dimension>(list, XmNshadowThickness, 1);
            expectBlackOnWhite(list);

            Widget const field = fieldOf(id);
            expectResource<Dimension>(field, XmNmarginWidth, 3);
            expectResource<Dimension>(field, XmNmarginHeight, 0);
            expectResource<Dimension>(field, XmNshadowThickness, 0);
            expectResource<Dimension>(field, XmNhighlightThickness, 0);
            expectResource<Boolean>(field, XmNcursorPositionVisible, False);
            expectBlackOnWhite(field);

            for (Widget const part : {box, list, field})
                EXPECT_EQ(fontOf(part), fontOf(controlOf(kLabel))) << XtName(part);
        }
        expectResource<Boolean>(fieldOf(kChoice), XmNeditable, False);
        expectResource<Boolean>(fieldOf(kCombo), XmNeditable, True);
    });
}

// That of a choice is wider than any screen, that of a combo box as wide as the control: so they are made,
// whatever the toolkit does of it when they drop down.
GUI_TEST(ListResources, WidthOfTheDropDownLists)
{
    withControls([] {
        expectResource<Dimension>(listOf(kChoice), XmNwidth, 5000);
        expectResource<Dimension>(listOf(kCombo), XmNwidth, placeOf(controlOf(kCombo)).width);
    });
}

GUI_TEST(ListResources, AreStopsOfTheTabKey)
{
    withControls([] {
        for (Widget const stop : {listOf(kList), controlOf(kChoice), controlOf(kCombo)})
            expectResource<XmNavigationType>(stop, XmNnavigationType, XmEXCLUSIVE_TAB_GROUP);
    });
}
