// Controls of one line become higher with their fonts.

#include <X11/IntrinsicP.h>
#include <Xm/SpinBP.h>

#include "text_attributes_support.h"

using namespace kite::testing;

namespace {

struct Row {
    Kind kind;
    int units;
    int pixels;
};

constexpr Row kRows[] = {{Label, 8, 0},  {Edit, 12, 0},  {PushButton, 12, 0},
                         {Check, 10, 2}, {Radio, 10, 2}, {Spin, 12, 0}};

int heightOfControl(int id)
{
    return resource<Dimension>(outerOf(id), XmNheight);
}

int widthOfControl(int id)
{
    return resource<Dimension>(outerOf(id), XmNwidth);
}

void expectHeights(const char* font)
{
    SCOPED_TRACE(font);
    const int unit = heightOf(font) / 8;
    ASSERT_GT(unit, unitOf(kHelvetica));
    for (const Row& row : kRows) {
        const int width = widthOfControl(row.kind);
        guiSetTextAtt(row.kind, 0, font);
        EXPECT_EQ(heightOfControl(row.kind), row.units * unit + row.pixels) << "kind " << row.kind;
        EXPECT_EQ(widthOfControl(row.kind), width) << "kind " << row.kind;
    }
}

void expectHeightsStay(const char* attribute)
{
    SCOPED_TRACE(attribute);
    for (const Row& row : kRows) {
        const int height = heightOfControl(row.kind);
        const int width = widthOfControl(row.kind);
        guiSetTextAtt(row.kind, 0, attribute);
        EXPECT_EQ(heightOfControl(row.kind), height) << "kind " << row.kind;
        EXPECT_EQ(widthOfControl(row.kind), width) << "kind " << row.kind;
    }
}

void withDialogFont(const char* font, const std::function<void()>& body)
{
    HostDouble::instance().profile().setString("fnamm", font);
    App::instance().run([&] { withAllKinds(body); });
}

constexpr char kCourier16[] = "-adobe-courier-medium-r-normal--14-140-75-75-m-90-iso8859-1";
constexpr char kCourier24[] = "-adobe-courier-medium-r-normal--24-240-75-75-m-150-iso8859-1";
constexpr char kHelvetica23[] = "-adobe-helvetica-bold-r-normal--18-180-75-75-p-103-iso8859-1";

}  // namespace

GUI_TEST(TextAttHeights, GrowBeforeTheDialogIsShown)
{
    withAllKinds([] {
        for (const char* font : {kCourier, kHuge}) expectHeights(font);
    });
}

GUI_TEST(TextAttHeights, GrowOnTheScreen)
{
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [](Shown) {
                   for (const char* font : {kCourier, kHuge}) {
                       expectHeights(font);
                       settle();
                       for (const Row& row : kRows)
                           EXPECT_EQ(rectOf(outerOf(row.kind)).height,
                                     row.units * (heightOf(font) / 8) + row.pixels)
                               << "kind " << row.kind;
                   }
               }});
}

GUI_TEST(TextAttHeights, StayWithFontsThatAreNotHigher)
{
    withAllKinds([] {
        for (const char* attribute :
             {kSmallest, kMissing, "VEXVARIABLE", "", "Arial", "*-helvetica-bold-o-*-14-*"})
            expectHeightsStay(attribute);
    });
}

// Beside its field a spin box has arrows, which stay where they are.
GUI_TEST(TextAttHeights, OfASpinBoxLeaveRoomForItsArrows)
{
    runDialog(
        {.build = [] { guiSpin(Spin, 0, 0, 40); },
         .look =
             [](Shown) {
                 const int width = rectOf(partsOf(Spin).front()).width;
                 ASSERT_LT(width, rectOf(outerOf(Spin)).width - 8);
                 for (const char* font : {kSmallest, kHuge, "VEXFIXED", kCourier}) {
                     guiSetTextAtt(Spin, 0, font);
                     settle();
                     EXPECT_EQ(rectOf(partsOf(Spin).front()).width, width) << font;
                     const auto& lower =
                         reinterpret_cast<XmSpinBoxWidget>(outerOf(Spin))->spinBox.down_arrow_rect;
                     EXPECT_LT(lower.y + lower.height / 2, rectOf(outerOf(Spin)).height) << font;
                 }
             }});
}

// Its field and its arrow stay in the box, which does not grow.
GUI_TEST(TextAttHeights, OfADropDownLeaveItsPartsInPlace)
{
    runDialog({.build =
                   [] {
                       guiChoice(ChoiceBox, 0, 0, 60);
                       guiCombo(Combo, 1, 0, 60);
                   },
               .look =
                   [](Shown) {
                       for (const int kind : {int{ChoiceBox}, int{Combo}}) {
                           const Rect box = rectOf(outerOf(kind));
                           const Rect field = rectOf(partsOf(kind).front());
                           for (const char* font : {kHuge, kSmallest, kCourier, "VEXVARIABLE"}) {
                               SCOPED_TRACE(font);
                               guiSetTextAtt(kind, 0, font);
                               settle();
                               EXPECT_EQ(rectOf(outerOf(kind)), box);
                               EXPECT_EQ(rectOf(partsOf(kind).front()), field);
                           }
                       }
                   }});
}

// Neither do they come back: not with a lower font, not with colours.
GUI_TEST(TextAttHeights, DoNotShrink)
{
    withAllKinds([] {
        expectHeights(kHuge);
        for (const char* attribute : {kSmallest, "VEXVARIABLE", "#ff0000", ""})
            expectHeightsStay(attribute);
    });
}

// A lower font can still be higher than the dialog's.
GUI_TEST(TextAttHeights, AreThoseOfTheLatestHigherFont)
{
    withAllKinds([] {
        for (const char* font : {kHuge, kCourier, kHuge}) expectHeights(font);
    });
}

GUI_TEST(TextAttHeights, FollowTheFontThatAControlHasAlready)
{
    withAllKinds([] {
        const int unit = heightOf(kCourier) / 8;
        for (const char* attribute : {"", kMissing, "nobody"}) {
            SCOPED_TRACE(attribute);
            guiSetTextAtt(PushButton, 0, kCourier);
            XtVaSetValues(innerOf(PushButton), XmNheight, 20, nullptr);
            guiSetTextAtt(PushButton, 0, "#ff0000");
            EXPECT_EQ(heightOfControl(PushButton), 20) << "colours change no height";
            guiSetTextAtt(PushButton, 0, attribute);
            EXPECT_EQ(heightOfControl(PushButton), 12 * unit);
        }
    });
}

GUI_TEST(TextAttHeights, OfOtherKindsStay)
{
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [](Shown) {
                   for (const Kind kind :
                        {ChoiceBox, List, MultiLine, Line, Image, Combo, Progress, Tree, Slider})
                       for (const char* font : {kHuge, kSmallest, kMissing}) {
                           const Rect place = rectOf(outerOf(kind));
                           guiSetTextAtt(kind, 0, font);
                           settle();
                           EXPECT_EQ(rectOf(outerOf(kind)), place) << kind << ' ' << font;
                       }
               }});
}

GUI_TEST(TextAttHeights, GrowOverTheEdgeOfTheDialog)
{
    for (const bool isShown : {false, true}) {
        const auto grow = [] {
            guiSetTextAtt(1, 0, kHuge);
            EXPECT_EQ(heightOfControl(1), heightOf(kHuge) / 8 * 12);
        };
        ASSERT_EQ(guiDialog("Small"), 0);
        guiButton(1, 0, 0, 60, "Button", 0);
        recorder.onEvent(GUI_EVENT_INIT, [&] {
            if (!isShown) grow();
        });
        app.whenShown("v_dlgbbr", [&](Shown dialog) {
            const int room = resource<Dimension>(dialog.widget(), XmNheight);
            if (isShown) grow();
            EXPECT_EQ(resource<Dimension>(dialog.widget(), XmNheight), room);
            EXPECT_GT(resource<Position>(outerOf(1), XmNy) + heightOfControl(1), room);
            guiClose(3);
        });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 3);
    }
}

GUI_STARTUP_TEST(TextAttHeights, GrowAboveTheUnitOfTheDialog)
{
    ASSERT_EQ(unitOf(kCourier16), 2.125);
    ASSERT_EQ(heightOf(kCourier24), 24);
    withDialogFont(kCourier16, [] {
        guiSetTextAtt(Label, 0, kCourier24);
        EXPECT_EQ(heightOfControl(Label), 24);
        guiSetTextAtt(PushButton, 0, kCourier24);
        EXPECT_EQ(heightOfControl(PushButton), 36);
    });
}

// 24 pixels are 3 to a unit, and so are 25. (A button is two pixels higher than its units.)
GUI_STARTUP_TEST(TextAttHeights, StayAtTheUnitOfTheDialog)
{
    ASSERT_EQ(unitOf(kHelvetica23), 3.0);
    ASSERT_EQ(heightOf(kCourier), 25);
    withDialogFont(kHelvetica23, [] {
        for (const char* font : {kCourier24, kCourier}) {
            guiSetTextAtt(PushButton, 0, font);
            EXPECT_EQ(heightOfControl(PushButton), 36 + 2) << font;
            guiSetTextAtt(Label, 0, font);
            EXPECT_EQ(heightOfControl(Label), 24) << font;
        }
        guiSetTextAtt(PushButton, 0, kHuge);
        EXPECT_EQ(heightOfControl(PushButton), 12 * (heightOf(kHuge) / 8));
    });
}

// The unit is that of the dialog, not of the font in the profile now.
GUI_TEST(TextAttHeights, AreMeasuredByTheFontOfTheDialog)
{
    withAllKinds([] {
        HostDouble::instance().profile().setString("fnamm", kHuge);
        guiSetTextAtt(PushButton, 0, kCourier24);
        EXPECT_EQ(heightOfControl(PushButton), 36);
    });
}
