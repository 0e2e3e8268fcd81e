// What the controls look like: margins, shadows, colours and fonts, as the toolkit has them.

#include <Xm/Container.h>
#include <Xm/SSpinB.h>
#include <Xm/Scale.h>
#include <Xm/ScrolledW.h>
#include <Xm/Text.h>

#include "other_controls_support.h"

using namespace kite::testing;

namespace {

template <typename T>
void expectResource(Widget widget, const char* name, T expected)
{
    EXPECT_EQ(+resource<T>(widget, name), +expected) << XtName(widget) << ": " << name;
}

void expectDimensions(Widget widget, std::initializer_list<std::pair<const char*, int>> expected)
{
    for (const auto& [name, pixels] : expected)
        EXPECT_EQ(resource<Dimension>(widget, name), pixels) << XtName(widget) << ": " << name;
}

void expectBlackOnWhite(Widget widget)
{
    Screen* const screen = DefaultScreenOfDisplay(XtDisplay(widget));
    expectResource<Pixel>(widget, XmNforeground, BlackPixelOfScreen(screen));
    expectResource<Pixel>(widget, XmNbackground, WhitePixelOfScreen(screen));
}

// The width of the letters of its first font; 0 for none.
int letterWidth(Widget widget)
{
    XmFontContext context = nullptr;
    if (!XmFontListInitFontContext(&context, resource<XmFontList>(widget, XmNfontList))) return 0;
    XmFontType type{};
    XtPointer const font = XmFontListEntryGetFont(XmFontListNextEntry(context), &type);
    XmFontListFreeFontContext(context);
    return type == XmFONT_IS_FONT ? static_cast<XFontStruct*>(font)->max_bounds.width : 0;
}

void expectBarsOfBoard(Widget scrolled)
{
    for (const char* const name : {XmNverticalScrollBar, XmNhorizontalScrollBar}) {
        Widget const bar = resource<Widget>(scrolled, name);
        ASSERT_TRUE(bar) << name;
        expectDimensions(bar, {{XmNshadowThickness, 2}, {XmNhighlightThickness, 0}});
        for (const char* const colour : {XmNforeground, XmNbackground})
            expectResource<Pixel>(bar, colour, resource<Pixel>(newestBoard(), colour));
    }
}

void expectLookOfAMultiLineText()
{
    runDialog(
        [] {
            guiText(1, 0, 3, 0, 60, 0);
            guiText(2, 3, 3, 0, 60, 1);
            guiText(3, 6, 3, 0, 60, -1);
        },
        [](Shown) {
            for (const int id : {1, 2, 3}) {
                SCOPED_TRACE(id);
                expectDimensions(controlOf(id),
                                 {{XmNshadowThickness, 0}, {XmNspacing, 0}, {XmNborderWidth, 0}});
                Widget const text = innerOf(id);
                expectDimensions(text, {{XmNshadowThickness, 2},
                                        {XmNhighlightThickness, 0},
                                        {XmNmarginWidth, 3},
                                        {XmNmarginHeight, 1}});
                expectResource<int>(text, XmNeditMode, XmMULTI_LINE_EDIT);
                expectResource<Boolean>(text, XmNeditable, id == 1);
                expectBlackOnWhite(text);
                expectBarsOfBoard(controlOf(id));
            }
        });
}

void expectLookOfATree()
{
    runDialog([] { guiTree(1, 0, 3, 0, 60); },
              [](Shown) {
                  expectDimensions(controlOf(1), {{XmNshadowThickness, 2}});
                  Widget const tree = innerOf(1);
                  expectDimensions(tree, {{XmNshadowThickness, 0}, {XmNhighlightThickness, 0}});
                  expectResource<unsigned char>(tree, XmNlayoutType, XmOUTLINE);
                  expectResource<unsigned char>(tree, XmNselectionPolicy, XmBROWSE_SELECT);
                  expectBarsOfBoard(controlOf(1));
              });
}

void expectLookOfASlider()
{
    runDialog([] { guiSlider(1, 0, 2, 0, 60); },
              [](Shown) {
                  Widget const scale = controlOf(1);
                  expectResource<int>(scale, XmNminimum, 0);
                  expectResource<int>(scale, XmNmaximum, 100);
                  expectResource<int>(scale, XmNvalue, 0);
                  expectDimensions(scale, {{XmNscaleWidth, 0}, {XmNscaleHeight, 0}});
                  expectResource<Pixel>(scale, XmNforeground, BlackPixelOfScreen(XtScreen(scale)));
                  XmString const title = resource<XmString>(scale, XmNtitleString);
                  EXPECT_EQ(toString(title), "");
                  XmStringFree(title);
              });
}

void expectLookOfAProgressBar()
{
    runDialog(
        [] { guiProgress(1, 0, 2, 0, 60); },
        [](Shown) {
            Widget const scale = controlOf(1);
            const Rect place = placeOf(scale);
            expectDimensions(scale, {{XmNscaleWidth, place.width}, {XmNscaleHeight, place.height}});
            expectResource<int>(scale, XmNminimum, 0);
            expectResource<int>(scale, XmNmaximum, 100);
            expectResource<int>(scale, XmNvalue, 0);
            expectResource<unsigned char>(scale, XmNslidingMode, XmTHERMOMETER);
            EXPECT_EQ(screen::colourOf(innerOf(1), resource<Pixel>(innerOf(1), XmNtroughColor)),
                      screen::colourNamed("#000080"));
        });
}

}  // namespace

GUI_TEST(OtherControlLook, IsThatOfTheirKinds)
{
    expectLookOfAMultiLineText();
    expectLookOfATree();
    expectLookOfASlider();
    expectLookOfAProgressBar();
}

// The field leaves 8 units of the width to the arrows: trunc(112.5) - trunc(15) pixels of 1.875 each.
GUI_STARTUP_TEST(OtherControlLook, OfASpinBox)
{
    setDialogFont(kSmallFont);
    app.run([] {
        runDialog([] { guiSpin(1, 0, 0, 60); },
                  [](Shown) {
                      Widget const box = controlOf(1);
                      expectDimensions(box, {{XmNmarginWidth, 0},
                                             {XmNmarginHeight, 0},
                                             {XmNshadowThickness, 1},
                                             {XmNheight, 21}});
                      expectResource<unsigned char>(box, XmNspinBoxChildType, XmNUMERIC);
                      expectResource<int>(box, XmNminimumValue, 0);
                      expectResource<int>(box, XmNmaximumValue, 100);
                      expectResource<int>(box, XmNincrementValue, 1);
                      expectResource<Boolean>(box, XmNeditable, True);
                      Widget const field = innerOf(1);
                      expectDimensions(field, {{XmNmarginWidth, 3},
                                               {XmNmarginHeight, 1},
                                               {XmNshadowThickness, 1},
                                               {XmNhighlightThickness, 1},
                                               {XmNwidth, 112 - 15}});
                      expectResource<Boolean>(field, XmNeditable, True);
                      expectBlackOnWhite(field);
                      EXPECT_EQ(fieldTextOf(1), "0");
                  });
    });
}

// Letters of 10 pixels in the dialog font, of 7 in the fixed-pitch font of the Output area.
GUI_STARTUP_TEST(OtherControlLook, TextsHaveTheFontOfTheOutputArea)
{
    setDialogFont(kLargeFont);
    host.profile().setString("fnamt", kSmallFont);
    app.run([] {
        runDialog(makeAllKinds, [](Shown) {
            ASSERT_EQ(letterWidth(findWidget("v_text")), 7);
            EXPECT_EQ(letterWidth(innerOf(kText)), 7);
            EXPECT_EQ(letterWidth(innerOf(kTree)), 10);
            EXPECT_EQ(letterWidth(innerOf(kSpin)), 10);
        });
    });
}

GUI_STARTUP_TEST(OtherControlLook, TextsHaveTheDialogFontWhenThatIsAllThereIs)
{
    setDialogFont(kLargeFont);
    host.profile().setString("fnamt", "-nobody-nothing-*-*-*-*-*-*-*-*-*-*-*-*");
    app.run([] {
        runDialog([] { guiText(1, 0, 3, 0, 60, 0); },
                  [](Shown) { EXPECT_EQ(letterWidth(innerOf(1)), 10); });
    });
}
