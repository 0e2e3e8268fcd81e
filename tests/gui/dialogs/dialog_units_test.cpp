// Where controls stand: dialog units, measured in the dialog's font.

#include "dialogs_support.h"

#include <X11/Xatom.h>

using namespace kite::testing;

namespace {

struct Pixels {
    int x, y, width, height;
    bool operator==(const Pixels&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Pixels& place)
{
    return out << place.x << ' ' << place.y << ' ' << place.width << ' ' << place.height;
}

Pixels placeOf(Widget widget)
{
    return {resource<Position>(widget, XmNx), resource<Position>(widget, XmNy),
            resource<Dimension>(widget, XmNwidth), resource<Dimension>(widget, XmNheight)};
}

// Labels stand exactly at their place: two units below the top of the row, 8 units high.
void expectPlaces(const Units& units)
{
    struct {
        int row, x, width;
    } const rows[] = {{0, 0, 1},   {0, 0, 2},    {0, 1, 3},    {1, 2, 5},
                      {2, 3, 10},  {3, 7, 33},   {4, 4, 99},   {10, 11, 7},
                      {17, 50, 8}, {40, 200, 1}, {-1, -7, 20}, {-3, -9, 20}};
    for (const bool isAbsolute : {false, true}) {
        ASSERT_EQ(guiDialog("Units"), 0);
        guiUseAbsPos(isAbsolute);
        int id = 0;
        for (const auto& row : rows) guiLabel(++id, row.row, row.x, row.width, "");
        id = 0;
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string{isAbsolute ? "y " : "row "} + std::to_string(row.row));
            const int y = isAbsolute ? row.row : row.row * 14 + 2;
            const Pixels expected{static_cast<int>((row.x + 7) * units.across),
                                  static_cast<int>((y + 7) * units.down),
                                  static_cast<int>(row.width * units.across),
                                  static_cast<int>(8 * units.down)};
            EXPECT_EQ(placeOf(control(++id)), expected);
        }
        guiClose(0);
    }
}

struct FirstFont {
    XmFontType type;
    XtPointer font;
};

// The first font of the list, in which a widget writes.
FirstFont firstFontOf(XmFontList list)
{
    FirstFont first{};
    XmFontContext context = nullptr;
    if (!XmFontListInitFontContext(&context, list)) return first;
    XmFontListEntry const entry = XmFontListNextEntry(context);
    first.font = XmFontListEntryGetFont(entry, &first.type);
    XmFontListFreeFontContext(context);
    return first;
}

std::string nameOfFirstFont(XmFontList list)
{
    const auto [type, font] = firstFontOf(list);
    if (!font) return {};
    unsigned long name = 0;
    if (type == XmFONT_IS_FONTSET) {
        XFontStruct** fonts = nullptr;
        char** names = nullptr;
        XFontsOfFontSet(static_cast<XFontSet>(font), &fonts, &names);
        return names[0];
    }
    if (!XGetFontProperty(static_cast<XFontStruct*>(font), XA_FONT, &name)) return {};
    char* const text = XGetAtomName(toolkit::display(), name);
    std::string copy = text;
    XFree(text);
    return copy;
}

constexpr char kNoFont[] = "-no-such-font-*-*-*--14-*-*-*-*-*-*-*";

// As from a resource file of the user's.
void addResources(std::initializer_list<std::pair<const char*, const char*>> resources)
{
    XrmDatabase database = XtDatabase(toolkit::display());
    for (const auto& [name, value] : resources) XrmPutStringResource(&database, name, value);
}

// What dialogs have without a font of the profile.
void lookAtFont(const std::function<void(XmFontList)>& look)
{
    ASSERT_EQ(guiDialog("Units"), 0);
    look(resource<XmFontList>(board(), XmNlabelFontList));
    guiClose(0);
}

}  // namespace

GUI_TEST(DialogUnits, GrowWithTheFontOfTheStatusLine)
{
    const std::string font =
        nameOfFirstFont(resource<XmFontList>(app.find("v_sline"), XmNfontList));
    EXPECT_EQ(font, kUsualFont);
    expectPlaces(unitsOf(kUsualFont));
}

GUI_STARTUP_TEST(DialogUnits, GrowWithTheFontOfTheProfile)
{
    host.profile().setString("fnamm", kLargeFont);
    app.run([] { expectPlaces(unitsOf(kLargeFont)); });
}

GUI_STARTUP_TEST(DialogUnits, GrowWithAProportionalFontOfTheProfile)
{
    const std::string font = "-adobe-times-bold-i-normal--24-240-75-75-p-128-iso8859-1";
    host.profile().setString("fnamm", font);
    app.run([&] { expectPlaces(unitsOf(font)); });
}

GUI_STARTUP_TEST(DialogUnits, GrowWithTheToolkitsFontWhenThereIsNone)
{
    host.profile().setString("fnamm", kNoFont);
    app.run([] {
        std::string font;
        lookAtFont([&](XmFontList list) { font = nameOfFirstFont(list); });
        expectPlaces(unitsOf(font));
    });
}

GUI_STARTUP_TEST(DialogUnits, GrowWithTheFirstFontOfASet)
{
    host.profile().setString("fnamm", kNoFont);
    app.run([] {
        addResources({{"*v_dlgbbr.labelFontList", "-misc-fixed-medium-r-normal--20-*:"}});
        lookAtFont([](XmFontList list) { EXPECT_EQ(firstFontOf(list).type, XmFONT_IS_FONTSET); });
        expectPlaces(unitsOf(kLargeFont));
    });
}

// Its letters are no fonts of the server's.
GUI_STARTUP_TEST(DialogUnits, GrowWithASmoothFont)
{
    host.profile().setString("fnamm", kNoFont);
    app.run([] {
        addResources({{"*v_dlgbbr.labelRenderTable", "smooth"},
                      {"*smooth.fontType", "FONT_IS_XFT"},
                      {"*smooth.fontName", "Sans"},
                      {"*smooth.fontSize", "20"}});
        Units units;
        lookAtFont([&](XmFontList list) {
            EXPECT_EQ(firstFontOf(list).type, XmFONT_IS_XFT);
            XmString const letters = XmStringCreateLocalized(
                const_cast<char*>("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"));
            const double width = XmStringWidth(list, letters);
            units = {((width / 26.0 + 1.0) / 2.0) / 4.0, (XmStringHeight(list, letters) + 1) / 8.0};
            XmStringFree(letters);
        });
        expectPlaces(units);
    });
}

// The controls write in the font that they are measured with; so does what a host adds to the board by itself.
GUI_STARTUP_TEST(DialogUnits, AreThoseOfTheFontOfAllControls)
{
    host.profile().setString("fnamm", kLargeFont);
    app.run([] {
        ASSERT_EQ(guiDialog("Font"), 0);
        guiLabel(1, 0, 0, 50, "Label");
        guiEdit(2, 1, 0, 50, 0, 0);
        guiButton(3, 2, 0, 50, "Button", 0);
        guiCheck(4, 3, 0, 50, "Check");
        guiRadio(5, 4, 0, 50, "Radio");
        const std::string large = "-Misc-Fixed-Medium-R-Normal--20-200-75-75-C-100-ISO8859-1";
        for (int id = 1; id <= 5; ++id)
            EXPECT_EQ(nameOfFirstFont(resource<XmFontList>(control(id), XmNfontList)), large) << id;
        for (const char* const list : {XmNlabelFontList, XmNbuttonFontList, XmNtextFontList})
            EXPECT_EQ(nameOfFirstFont(resource<XmFontList>(board(), list)), large) << list;
    });
}
