// Colours by attribute strings.

#include "frame/frame_checks.h"
#include "text_attributes_support.h"

using namespace kite::testing;

namespace {

constexpr int kFull = 65025;    // 255 times 255
constexpr int kUnread = 65281;  // -1 times 255, in 16 bits

void expectLook(int kind, const char* attribute, const Look& expected)
{
    guiSetTextAtt(kind, 0, attribute);
    EXPECT_EQ(lookOfKind(kind), expected) << attribute;
    for (Widget const part : partsOf(kind)) EXPECT_EQ(lookOf(part), expected) << attribute;
}

}  // namespace

GUI_TEST(TextAttColours, OfTextAndBackgroundOfEachKind)
{
    withAllKinds([] {
        for (const Kind kind : kAllKinds) {
            SCOPED_TRACE(kind);
            expectLook(kind, "#ff0000/#000080", {red(), navy()});
            expectLook(kind, "#000080/#ff0000", {navy(), red()});
            expectLook(kind, "#000000/#ffffff", {black(), pixelOf(kFull, kFull, kFull)});
        }
    });
}

GUI_TEST(TextAttColours, OfOneOfBoth)
{
    withAllKinds([] {
        for (const Kind kind : kAllKinds) {
            SCOPED_TRACE(kind);
            disguise(kind);
            guiSetTextAtt(kind, 0, "#ff0000");
            EXPECT_EQ(lookOfKind(kind).foreground, red());
            guiSetTextAtt(kind, 0, "/#000080");
            EXPECT_EQ(lookOfKind(kind).background, navy());
        }
    });
}

GUI_TEST(TextAttColours, ComponentsAreMultipliedBy255)
{
    runDialog({.build = [] { guiLabel(1, 0, 0, 20, "x"); },
               .fill =
                   [] {
                       ASSERT_NE(red(), pixelOf(65535, 0, 0)) << "the screen must tell them apart";
                       guiSetTextAtt(1, 0, "#ff0000");
                       EXPECT_EQ(lookOf(innerOf(1)).foreground, red());
                       guiSetTextAtt(1, 0, "#123456/#789abc");
                       EXPECT_EQ(lookOf(innerOf(1)),
                                 (Look{pixelOf(0x12 * 255, 0x34 * 255, 0x56 * 255),
                                       pixelOf(0x78 * 255, 0x9a * 255, 0xbc * 255)}));
                   }});
}

GUI_TEST(TextAttColours, AreReadAsFarAsTheyGo)
{
    runDialog({.build = [] { guiLabel(1, 0, 0, 20, "x"); },
               .fill =
                   [] {
                       const Pixel board = lookOf(innerOf(1)).background;
                       struct {
                           const char* attribute;
                           Look look;
                       } const rows[] = {{"#ff", {pixelOf(kFull, kUnread, kUnread), board}},
                                         {"#0001", {pixelOf(0, 255, kUnread), board}},
                                         {"#0000", {black(), board}},
                                         {"#red", {black(), board}},
                                         {"#ff0000/#", {red(), board}},
                                         {"#ff0000/#0", {red(), board}},
                                         {"#FF0000 or so", {red(), board}}};
                       for (const auto& row : rows) expectLook(1, row.attribute, row.look);
                   }});
}

GUI_TEST(TextAttColours, ChangeNeitherFontNorPlace)
{
    withAllKinds([] {
        for (const Kind kind : kAllKinds) {
            SCOPED_TRACE(kind);
            Widget const control = innerOf(kind);
            const auto height = resource<Dimension>(outerOf(kind), XmNheight);
            const auto width = resource<Dimension>(outerOf(kind), XmNwidth);
            const std::string font = fontNameOf(control, XmNfontList);
            for (const char* attribute : {"#ff0000", "/#ff0000", "#", "/x"}) {
                guiSetTextAtt(kind, 31, attribute);
                EXPECT_EQ(fontNameOf(control, XmNfontList), font) << attribute;
                EXPECT_EQ(resource<Dimension>(outerOf(kind), XmNheight), height) << attribute;
                EXPECT_EQ(resource<Dimension>(outerOf(kind), XmNwidth), width) << attribute;
            }
        }
    });
}
