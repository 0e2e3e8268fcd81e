// A form with everything, on the screen: nothing is cut off, nothing lies over anything else.

#include <Xm/Xm.h>

#include "artefacts.h"
#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

constexpr char kLargerHelvetica[] = "-adobe-helvetica-bold-r-normal--18-*-*-*-*-*-iso8859-1";

void build()
{
    guiLabel(-1, 0, 0, 44, "&Name:");
    guiEdit(1, 0, 48, 80, 0, 0);
    guiLabel(-1, 1, 0, 44, "&Password:");
    guiEdit(2, 1, 48, 80, 1, 0);
    guiLabel(-1, 2, 0, 44, "Read only:");
    guiEdit(3, 2, 48, 80, 0, 1);
    guiLine(-1, 3, 1, 0, 160);
    guiCheck(4, 4, 0, 70, "&Check box");
    guiCheck(5, 5, 0, 70, "Another one");
    guiLine(-1, 4, 3, 76, 1);
    guiRadio(6, 4, 80, 70, "First choice");
    guiRadio(7, 5, 80, 70, "Second choice");
    guiRadio(8, 6, 80, 70, "Third choice");
    guiLine(-1, 8, 3, 0, 70);
    guiCheck(9, 8, 4, 60, "In a frame");
    guiCheck(10, 9, 4, 60, "And this");
    guiImage(11, 8, 3, 80, 40, 1);
    guiImage(12, 8, 3, 124, 36, 0);
    guiButton(13, 12, 0, 48, "OK", 1);
    guiButton(0, 12, 54, 48, "Cancel", 0);
    guiButton(14, 12, 108, 48, "gjpqy\xC5\xC4", 0);
}

bool overlaps(const Rect& a, const Rect& b)
{
    return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

bool isRectangleLine(Widget widget)
{
    return std::string{XtName(widget)} == "v_dlgline" && placeOf(widget).width > 1 &&
           placeOf(widget).height > 1;
}

bool hasText(Widget widget)
{
    const std::string name = XtName(widget);
    return name == "v_dlglabel" || name == "v_dlgbutton" || name == "v_dlgcheck" ||
           name == "v_dlgradio";
}

// What the text and its surroundings would take by themselves.
Dimension neededHeight(Widget widget)
{
    XmString const label = resource<XmString>(widget, XmNlabelString);
    auto const font = resource<XmFontList>(widget, XmNfontList);
    const Dimension height = XmStringHeight(font, label);
    XmStringFree(label);
    return static_cast<Dimension>(height +
                                  2 * (resource<Dimension>(widget, XmNshadowThickness) +
                                       resource<Dimension>(widget, XmNhighlightThickness)));
}

Dimension neededWidth(Widget widget)
{
    XmString const label = resource<XmString>(widget, XmNlabelString);
    auto const font = resource<XmFontList>(widget, XmNfontList);
    const Dimension width = XmStringWidth(font, label);
    XmStringFree(label);
    return static_cast<Dimension>(width + resource<Dimension>(widget, XmNmarginLeft) +
                                  resource<Dimension>(widget, XmNmarginRight));
}

void expectGoodForm(Shown dialog)
{
    dialog.type("Käte");
    guiSetText(3, "Read only");
    settle();
    const Rect board{0, 0, placeOf(dialog.widget()).width, placeOf(dialog.widget()).height};
    const std::vector<Widget> controls = controlsOfBoard();
    for (Widget const control : controls) {
        SCOPED_TRACE(XtName(control) + std::string{" "} + labelOf(control));
        const Rect place = placeOf(control);
        EXPECT_TRUE(isShown(control));
        EXPECT_GE(place.x, 0);
        EXPECT_GE(place.y, 0);
        EXPECT_LE(place.right(), board.right());
        EXPECT_LE(place.bottom(), board.bottom());
        if (hasText(control)) {
            EXPECT_GE(place.height, neededHeight(control));
            EXPECT_GE(place.width, neededWidth(control));
        }
        for (Widget const other : controls)
            if (other != control && !isRectangleLine(control) && !isRectangleLine(other)) {
                EXPECT_FALSE(overlaps(place, placeOf(other))) << "with " << XtName(other);
            }
    }
    dialog.savePicture("form");
}

}  // namespace

GUI_TEST(Form, IsReadableInTheDefaultFont)
{
    runDialog(build, expectGoodForm);
}

GUI_STARTUP_TEST(Form, IsReadableInTheSmallFont)
{
    setDialogFont(kSmallFont);
    app.run([] { runDialog(build, expectGoodForm); });
}

GUI_STARTUP_TEST(Form, IsReadableInTheLargeFont)
{
    setDialogFont(kLargeFont);
    app.run([] { runDialog(build, expectGoodForm); });
}

GUI_STARTUP_TEST(Form, IsReadableInABoldFont)
{
    setDialogFont(kLargerHelvetica);
    app.run([] { runDialog(build, expectGoodForm); });
}
