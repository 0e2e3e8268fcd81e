// What controls are made of: class, name, tag, resources and label.

#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/Text.h>
#include <Xm/ToggleB.h>

#include <cstdint>

#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

struct Kind {
    std::string call;
    std::string widget;
    WidgetClass widgetClass;
    int type;
    std::function<void(int id)> make;
};

const std::vector<Kind>& allKinds()
{
    static const std::vector<Kind> kinds{
        {"Label", "v_dlglabel", xmLabelWidgetClass, 1,
         [](int id) { guiLabel(id, 0, 0, 40, "Text"); }},
        {"Edit", "v_dlgedit", xmTextWidgetClass, 2, [](int id) { guiEdit(id, 1, 0, 40, 0, 0); }},
        {"Button", "v_dlgbutton", xmPushButtonWidgetClass, 3,
         [](int id) { guiButton(id, 2, 0, 40, "Text", 0); }},
        {"Check", "v_dlgcheck", xmToggleButtonWidgetClass, 4,
         [](int id) { guiCheck(id, 3, 0, 40, "Text"); }},
        {"Radio", "v_dlgradio", xmToggleButtonWidgetClass, 5,
         [](int id) { guiRadio(id, 4, 0, 40, "Text"); }},
        {"Line", "v_dlgline", nullptr, 9, [](int id) { guiLine(id, 5, 1, 0, 40); }},
        {"Image", "v_dlgimage", xmToggleButtonWidgetClass, 10,
         [](int id) { guiImage(id, 6, 2, 0, 40, 0); }},
    };
    return kinds;
}

std::uint32_t tagOf(Widget widget)
{
    return static_cast<std::uint32_t>(
        reinterpret_cast<std::uintptr_t>(resource<XtPointer>(widget, XmNuserData)));
}

// Makes controls and looks at them while they are shown.
void whenBuilt(const std::function<void()>& build, const std::function<void()>& look)
{
    runDialog(build, [&](Shown) { look(); });
}

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

XFontStruct* fontOf(Widget widget)
{
    XmFontContext context = nullptr;
    if (!XmFontListInitFontContext(&context, resource<XmFontList>(widget, XmNfontList)))
        return nullptr;
    XmFontType type{};
    XtPointer const font = XmFontListEntryGetFont(XmFontListNextEntry(context), &type);
    XmFontListFreeFontContext(context);
    return type == XmFONT_IS_FONT ? static_cast<XFontStruct*>(font) : nullptr;
}

}  // namespace

GUI_TEST(ControlLook, EachHasItsNameAndClass)
{
    whenBuilt(
        [] {
            for (const Kind& kind : allKinds()) kind.make(kind.type);
        },
        [] {
            ASSERT_EQ(controlsOfBoard().size(), allKinds().size());
            for (const Kind& kind : allKinds()) {
                Widget const widget = controlOf(kind.type);
                EXPECT_EQ(XtName(widget), kind.widget);
                if (kind.widgetClass) {
                    EXPECT_EQ(XtClass(widget), kind.widgetClass) << kind.widget;
                }
            }
        });
}

// The id above, the type code below; of anonymous ones the id is -1.
GUI_TEST(ControlLook, EachCarriesItsTag)
{
    for (const int id : {1, 2, 255, 32766, 32767}) {
        SCOPED_TRACE(id);
        for (const Kind& kind : allKinds()) {
            ASSERT_EQ(guiDialog(""), 0);
            kind.make(id);
            EXPECT_EQ(tagOf(lastControl()), static_cast<std::uint32_t>(id << 16 | kind.type))
                << kind.call;
            guiClose(0);
        }
    }
    ASSERT_EQ(guiDialog(""), 0);
    guiLabel(-1, 0, 0, 40, "Text");
    EXPECT_EQ(tagOf(lastControl()), 0xFFFF0001U);
    guiLine(-1, 0, 1, 0, 40);
    EXPECT_EQ(tagOf(lastControl()), 0xFFFF0009U);
    guiButton(0, 0, 0, 40, "Text", 0);
    EXPECT_EQ(tagOf(lastControl()), 3U);
    guiClose(0);
}

GUI_TEST(ControlLook, OfALabel)
{
    whenBuilt([] { guiLabel(1, 0, 0, 40, "Text"); },
              [] {
                  Widget const label = controlOf(1);
                  expectDimensions(label, {{XmNshadowThickness, 0},
                                           {XmNhighlightThickness, 0},
                                           {XmNmarginWidth, 0},
                                           {XmNmarginHeight, 0},
                                           {XmNborderWidth, 0}});
                  expectResource<unsigned char>(label, XmNalignment, XmALIGNMENT_BEGINNING);
                  expectResource<Boolean>(label, XmNrecomputeSize, False);
              });
}

GUI_TEST(ControlLook, OfAnEdit)
{
    whenBuilt(
        [] {
            guiEdit(1, 0, 0, 40, 0, 0);
            guiEdit(2, 1, 0, 40, 0, 1);
            guiEdit(3, 2, 0, 40, 1, 0);
        },
        [] {
            Screen* const screen = XtScreen(newestBoard());
            for (const int id : {1, 2, 3}) {
                SCOPED_TRACE(id);
                Widget const edit = controlOf(id);
                expectDimensions(edit, {{XmNshadowThickness, 2},
                                        {XmNhighlightThickness, 1},
                                        {XmNmarginWidth, 3},
                                        {XmNmarginHeight, 1},
                                        {XmNborderWidth, 0}});
                expectResource<int>(edit, XmNeditMode, XmSINGLE_LINE_EDIT);
                expectResource<Pixel>(edit, XmNbackground, WhitePixelOfScreen(screen));
                expectResource<Pixel>(edit, XmNforeground,
                                      id == 3 ? WhitePixelOfScreen(screen)
                                              : BlackPixelOfScreen(screen));
                expectResource<Boolean>(edit, XmNeditable, id != 2);
            }
        });
}

GUI_TEST(ControlLook, OfAButton)
{
    whenBuilt([] { guiButton(1, 0, 0, 40, "Text", 0); },
              [] {
                  Widget const button = controlOf(1);
                  expectDimensions(
                      button,
                      {{XmNshadowThickness, 2}, {XmNhighlightThickness, 1}, {XmNborderWidth, 0}});
                  expectResource<unsigned char>(button, XmNalignment, XmALIGNMENT_CENTER);
                  expectResource<Boolean>(button, XmNrecomputeSize, False);
              });
}

GUI_STARTUP_TEST(ControlLook, OfCheckBoxesAndRadioButtons)
{
    setDialogFont(kLargeFont);
    app.run([] {
        whenBuilt(
            [] {
                guiCheck(1, 0, 0, 40, "Text");
                guiRadio(2, 1, 0, 40, "Text");
            },
            [] {
                for (const int id : {1, 2}) {
                    SCOPED_TRACE(id);
                    Widget const toggle = controlOf(id);
                    expectDimensions(toggle, {{XmNshadowThickness, 0},
                                              {XmNhighlightThickness, 1},
                                              {XmNborderWidth, 0},
                                              {XmNspacing, 3}});  // trunc(1.5 * 2.625)
                    expectResource<unsigned char>(toggle, XmNalignment, XmALIGNMENT_BEGINNING);
                    expectResource<Boolean>(toggle, XmNrecomputeSize, False);
                    expectResource<Boolean>(toggle, XmNvisibleWhenOff, True);
                    EXPECT_NE(+resource<unsigned char>(toggle, XmNindicatorOn), +XmINDICATOR_NONE);
                }
                expectResource<unsigned char>(controlOf(1), XmNindicatorType, XmN_OF_MANY);
                expectResource<unsigned char>(controlOf(2), XmNindicatorType, XmONE_OF_MANY);
            });
    });
}

GUI_TEST(ControlLook, OfAnImage)
{
    whenBuilt(
        [] {
            guiImage(1, 0, 2, 0, 40, 0);
            guiImage(2, 2, 2, 0, 40, 1);
            guiImage(3, 4, 2, 0, 40, -1);
        },
        [] {
            for (const int id : {1, 2, 3}) {
                SCOPED_TRACE(id);
                Widget const image = controlOf(id);
                expectDimensions(image, {{XmNshadowThickness, id == 1 ? 0 : 2},
                                         {XmNhighlightThickness, 0},
                                         {XmNmarginWidth, 0},
                                         {XmNmarginHeight, 0},
                                         {XmNmarginLeft, 0},
                                         {XmNmarginRight, 0},
                                         {XmNmarginTop, 0},
                                         {XmNmarginBottom, 0},
                                         {XmNborderWidth, 0}});
                expectResource<Boolean>(image, XmNrecomputeSize, False);
                expectResource<Boolean>(image, XmNsensitive, True);
                expectResource<unsigned char>(image, XmNlabelType, XmPIXMAP);
                expectResource<unsigned char>(image, XmNindicatorOn, XmINDICATOR_NONE);
                for (const char* const pixmap :
                     {XmNlabelPixmap, XmNselectPixmap, XmNlabelInsensitivePixmap,
                      XmNselectInsensitivePixmap})
                    expectResource<Pixmap>(image, pixmap, XmUNSPECIFIED_PIXMAP);
            }
        });
}

// guiShowAllBorders counts for the labels, check boxes and radio buttons that follow.
GUI_TEST(ControlLook, BordersBeginWhenTheyAreAskedFor)
{
    whenBuilt(
        [] {
            int id = 0;
            for (const Kind& kind : allKinds()) kind.make(++id);
            guiShowAllBorders();
            for (const Kind& kind : allKinds()) kind.make(++id);
        },
        [] {
            int id = 0;
            for (const Kind& kind : allKinds())
                EXPECT_EQ(resource<Dimension>(controlOf(++id), XmNborderWidth), 0) << kind.call;
            for (const Kind& kind : allKinds()) {
                const bool has = kind.type == 1 || kind.type == 4 || kind.type == 5;
                EXPECT_EQ(resource<Dimension>(controlOf(++id), XmNborderWidth), has) << kind.call;
            }
        });
}

GUI_STARTUP_TEST(ControlLook, AllTextsAreInTheDialogFont)
{
    setDialogFont(kLargeFont);
    app.run([] {
        whenBuilt(
            [] {
                for (const Kind& kind : allKinds()) kind.make(kind.type);
            },
            [] {
                for (const int type : {1, 2, 3, 4, 5}) {
                    XFontStruct* const font = fontOf(controlOf(type));
                    ASSERT_NE(font, nullptr) << type;
                    EXPECT_EQ(font->max_bounds.width, 10) << type;
                    EXPECT_EQ(font->ascent + font->descent, 20) << type;
                }
            });
    });
}

// Each refuses with its own name; the checks themselves are those of the dialog.
GUI_TEST(ControlLook, RefusalsNameTheControl)
{
    for (const Kind& kind : allKinds())
        EXPECT_MISUSE(kind.make(1), kind.call + ": no dialog is built at the moment");
    ASSERT_EQ(guiDialog(""), 0);
    for (const Kind& kind : allKinds()) {
        EXPECT_MISUSE(kind.make(-2), kind.call + ": invalid control id -2");
        EXPECT_MISUSE(kind.make(32768), kind.call + ": invalid control id 32768");
        const bool anonymous = kind.type == 1 || kind.type == 9;
        if (!anonymous) {
            EXPECT_MISUSE(kind.make(-1), kind.call + ": invalid control id -1");
        }
        if (kind.type != 3) {
            EXPECT_MISUSE(kind.make(0), kind.call + ": invalid control id 0");
        }
    }
    EXPECT_EQ(controlsOfBoard().size(), 0U);
    guiCheck(1, 0, 0, 40, "the one");
    for (const Kind& kind : allKinds())
        EXPECT_MISUSE(kind.make(1), kind.call + ": duplicate control id 1");
    EXPECT_EQ(controlsOfBoard().size(), 1U);
    guiClose(0);
}
