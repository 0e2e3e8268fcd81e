// Fonts by attribute strings.

#include "frame/frame_checks.h"
#include "server_font.h"
#include "text_attributes_support.h"

using namespace kite::testing;

namespace {

// Those that the toolkit gives a font list.
const std::vector<Kind> kWithFont{Label, Edit,      PushButton, Check, Radio,    ChoiceBox, List,
                                  Image, MultiLine, Combo,      Tree,  Progress, Slider};

std::string fontOf(Widget widget)
{
    return fontNameOf(widget, XmNfontList);
}

// In its parent.
Rect rectIn(Widget widget)
{
    return {resource<Position>(widget, XmNx), resource<Position>(widget, XmNy),
            resource<Dimension>(widget, XmNwidth), resource<Dimension>(widget, XmNheight)};
}

void buildLabel()
{
    guiLabel(1, 0, 0, 60, "Label");
}

void expectFont(char flags, const char* attribute, const std::string& pattern)
{
    SCOPED_TRACE(attribute);
    guiSetTextAtt(1, 0, kCourier);
    ASSERT_EQ(fontOf(innerOf(1)), fontNameFor(kCourier));
    const std::string expected = fontNameFor(pattern);
    ASSERT_NE(expected, "") << pattern;
    ASSERT_NE(expected, fontNameFor(kCourier)) << pattern;
    guiSetTextAtt(1, flags, attribute);
    EXPECT_EQ(fontOf(innerOf(1)), expected);
}

void expectFontStays(char flags, const char* attribute)
{
    SCOPED_TRACE(std::string{attribute}.substr(0, 100));
    guiSetTextAtt(1, 0, kCourier);
    guiSetTextAtt(1, flags, attribute);
    EXPECT_EQ(fontOf(innerOf(1)), fontNameFor(kCourier));
}

}  // namespace

GUI_TEST(TextAttFonts, OfEachForm)
{
    runDialog({.build = buildLabel, .fill = [] {
                   expectFont(0, kSmallest, kSmallest);
                   expectFont(31, kSmallest, kSmallest);
                   expectFont(0, "*-helvetica-bold-o-*-18-*", "*-helvetica-bold-o-*-18-*");
                   expectFont(0, "VEXFIXED", kFixed);
                   expectFont(31, "VEXFIXED", kFixed);
                   expectFont(0, "VEXVARIABLE", kHelvetica);
                   expectFont(0, "Arial", "-*-helvetica-medium-r-normal--14-*");
                   expectFont(GUI_FONT_BOLD | GUI_FONT_LARGE, "Arial",
                              "-*-helvetica-bold-r-normal--18-*");
                   expectFont(0, "Courier New", "-*-courier-medium-r-normal--14-*");
                   expectFont(1, "Courier New", "-*-courier-bold-r-normal--14-*");
                   expectFont(0, "Times", "-*-Times-medium-r-normal--14-*");
                   expectFont(GUI_FONT_BOLD | GUI_FONT_ITALIC, "Times",
                              "-*-Times-bold-i-normal--14-*");
                   expectFont(GUI_FONT_SMALL, "times", "-*-times-medium-r-normal--10-*");
                   expectFont(GUI_FONT_SMALL, "new century schoolbook",
                              "-*-new century schoolbook-medium-r-normal--10-*");
               }});
}

GUI_TEST(TextAttFonts, StayWhenTheServerHasNone)
{
    runDialog({.build = buildLabel, .fill = [] {
                   for (const char* attribute : {kMissing, "-", "*nobody*", "nobody", "courier new",
                                                 "vexfixed", "VEXFIXED ", "\x01\xff"})
                       expectFontStays(0, attribute);
                   expectFontStays(GUI_FONT_UNDERLINE, "Times");
               }});
}

GUI_TEST(TextAttFonts, StayWhenTheNameIsTooLong)
{
    runDialog({.build = buildLabel, .fill = [] {
                   for (const int length : {256, 1023, 1024, 5000, 65534, 65535, 300'000}) {
                       const std::string name(static_cast<std::size_t>(length), 'x');
                       expectFontStays(0, name.c_str());
                       expectFontStays(0, ('-' + name).c_str());
                   }
               }});
}

GUI_TEST(TextAttFonts, OfEachKindAndItsParts)
{
    withAllKinds([] {
        for (const Kind kind : kWithFont)
            for (const char* font : {kCourier, kSmallest}) {
                SCOPED_TRACE(kind);
                guiSetTextAtt(kind, 0, font);
                EXPECT_EQ(fontOf(innerOf(kind)), fontNameFor(font));
                for (Widget const part : partsOf(kind)) EXPECT_EQ(fontOf(part), fontNameFor(font));
            }
    });
}

GUI_TEST(TextAttFonts, OfASpinBoxIsThatOfItsField)
{
    withAllKinds([] {
        for (const char* font : {kCourier, kSmallest, kMissing}) {
            guiSetTextAtt(Spin, 0, font);
            const std::string expected = fontNameFor(font == kMissing ? kSmallest : font);
            EXPECT_EQ(fontOf(partsOf(Spin).front()), expected);
        }
    });
}

GUI_TEST(TextAttFonts, OfKindsWithoutTextChangeNothing)
{
    withAllKinds([] {
        disguise(Line);
        for (const char* font : {kCourier, "VEXFIXED", kMissing}) guiSetTextAtt(Line, 0, font);
        EXPECT_EQ(lookOfKind(Line), disguised());
    });
}

GUI_TEST(TextAttFonts, OfTheProfileAreReadAtEachCall)
{
    runDialog(
        {.build = buildLabel, .fill = [] {
             Profile& profile = HostDouble::instance().profile();
             struct {
                 const char* tag;
                 const char* key;
                 const char* byDefault;
             } const rows[] = {{"VEXFIXED", "fnamt", kFixed}, {"VEXVARIABLE", "fnamm", kHelvetica}};
             for (const auto& row : rows) {
                 for (const char* font : {kCourier, kSmallest}) {
                     profile.setString(row.key, font);
                     guiSetTextAtt(1, 0, row.tag);
                     EXPECT_EQ(fontOf(innerOf(1)), fontNameFor(font)) << row.tag;
                 }
                 profile.setString(row.key, kMissing);
                 guiSetTextAtt(1, 0, row.tag);
                 EXPECT_EQ(fontOf(innerOf(1)), fontNameFor(kSmallest)) << row.tag;
                 profile.setString(row.key, "");
                 guiSetTextAtt(1, 0, row.tag);
                 EXPECT_EQ(fontOf(innerOf(1)), fontNameFor(row.byDefault)) << row.tag;
             }
         }});
}

GUI_TEST(TextAttFonts, OfOthersDoNotReadTheProfile)
{
    runDialog({.build = buildLabel, .fill = [] {
                   Profile& profile = HostDouble::instance().profile();
                   profile.clearAccesses();
                   for (const char* attribute : {kCourier, "Times", "#ff0000", ""})
                       guiSetTextAtt(1, 0, attribute);
                   EXPECT_THAT(profile.accesses(), ::testing::IsEmpty());
               }});
}

// A font that could not be had is asked for again.
GUI_TEST(TextAttFonts, ThatAreInstalledLater)
{
    runDialog({.build = buildLabel, .fill = [] {
                   constexpr char kAlias[] = "-late-font";
                   expectFontStays(0, kAlias);
                   giveServerFont(kAlias, fontNameFor(kSmallest));
                   guiSetTextAtt(1, 0, kAlias);
                   EXPECT_EQ(fontOf(innerOf(1)), fontNameFor(kSmallest));
               }});
}

// Each below the one before it, and all of them in the tree.
GUI_TEST(TextAttFonts, OfATreePlaceItsItemsAnew)
{
    runDialog({.fill = [] { makeTree(Tree, numberedItems(5)); },
               .look =
                   [](Shown) {
                       for (const char* font : {kHuge, kSmallest, kCourier}) {
                           SCOPED_TRACE(font);
                           guiSetTextAtt(Tree, 0, font);
                           settle();
                           int bottom = 0;
                           for (Widget const item : partsOf(Tree)) {
                               const Rect place = rectIn(item);
                               EXPECT_EQ(place.y, bottom);
                               EXPECT_GE(place.height, heightOf(font));
                               bottom = place.y + place.height;
                               EXPECT_LE(place.x + place.width,
                                         resource<Dimension>(innerOf(Tree), XmNwidth));
                           }
                           EXPECT_LE(bottom, resource<Dimension>(innerOf(Tree), XmNheight));
                       }
                   }});
}
