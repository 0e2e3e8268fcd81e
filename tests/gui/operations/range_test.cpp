// guiSetRange.

#include <climits>

#include <Xm/SSpinB.h>
#include <Xm/Scale.h>
#include <Xm/Text.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

struct Values {
    int least;
    int most;
    int value;
    bool operator==(const Values&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Values& values)
{
    return out << values.least << ".." << values.most << ": " << values.value;
}

Values valuesOf(int kind)
{
    Widget const widget = outerOf(kind);
    if (kind == Spin)
        return {resource<int>(widget, XmNminimumValue), resource<int>(widget, XmNmaximumValue),
                resource<int>(widget, XmNposition)};
    return {resource<int>(widget, XmNminimum), resource<int>(widget, XmNmaximum),
            resource<int>(widget, XmNvalue)};
}

}  // namespace

GUI_TEST(Range, OfAScaleIsShiftedByOne)
{
    withKinds([] {
        for (const Kind kind : {Slider, Progress}) {
            SCOPED_TRACE(kind);
            guiSetRange(kind, 1, 100);
            EXPECT_EQ(valuesOf(kind), (Values{0, 99, 0}));
            guiSetRange(kind, 11, 21);
            EXPECT_EQ(valuesOf(kind), (Values{10, 20, 10}));
            guiSetRange(kind, -100, 0);
            EXPECT_EQ(valuesOf(kind), (Values{-101, -1, -1}));
            guiSetRange(kind, 0, 1);
            EXPECT_EQ(valuesOf(kind), (Values{-1, 0, -1}));
        }
    });
}

GUI_TEST(Range, OfASpinBoxIsNotShifted)
{
    withKinds([] {
        guiSetRange(Spin, 1, 10);
        EXPECT_EQ(valuesOf(Spin), (Values{1, 10, 1}));
        guiSetText(Spin, "7");
        guiSetRange(Spin, -5, 20);
        EXPECT_EQ(valuesOf(Spin), (Values{-5, 20, 7}));
        guiSetText(Spin, "-3");
        EXPECT_EQ(guiGetTextInt(Spin), -3);
        EXPECT_EQ(guiGetPos(Spin), -4);
    });
}

GUI_TEST(Range, KeepsAValueInsideOfIt)
{
    withKinds([] {
        for (const Kind kind : {Slider, Progress}) {
            guiSetPos(kind, 30);
            const int value = guiGetPos(kind);
            guiSetRange(kind, 21, 51);
            EXPECT_EQ(valuesOf(kind), (Values{20, 50, value}));
        }
    });
}

GUI_TEST(Range, OfATextIsItsLongestLength)
{
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [](Shown dialog) {
                   for (const Kind kind : {Edit, MultiLine}) {
                       SCOPED_TRACE(kind);
                       Widget const text = innerOf(kind);
                       guiSetText(kind, "");
                       guiSetRange(kind, 77, 3);
                       EXPECT_EQ(resource<int>(text, XmNmaxLength), 3);
                       for (const int ignored : {0, -1, INT_MIN}) {
                           guiSetRange(kind, 1, ignored);
                           EXPECT_EQ(resource<int>(text, XmNmaxLength), 3) << ignored;
                       }
                       guiSetFocus(kind);
                       dialog.type("abcdef");
                       EXPECT_EQ(textOf(text), "abc");
                       guiSetRange(kind, 0, INT_MAX);
                       EXPECT_EQ(resource<int>(text, XmNmaxLength), INT_MAX);
                       dialog.type("d");
                       EXPECT_EQ(textOf(text), "abcd");
                   }
               }});
}

// The toolkit complains of the widest ranges of a scale, and takes others of its own choice.
GUI_TEST(Range, AtTheEndsOfTheNumbersIsSurvived)
{
    const int numbers[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, 2, INT_MAX - 1, INT_MAX};
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [&](Shown) {
                   for (const Kind kind : {Slider, Progress, Spin, Edit, MultiLine}) {
                       for (const int min : numbers)
                           for (const int max : numbers) {
                               guiSetRange(kind, min, max);
                               guiSetPos(kind, max);
                               guiSetPos(kind, min);
                           }
                       settle();
                       guiSetRange(kind, 1, 100);
                       EXPECT_EQ(guiIdStatus(kind), 1);
                   }
                   EXPECT_EQ(valuesOf(Slider).most, 99);
                   EXPECT_EQ(valuesOf(Spin).most, 100);
               }});
}

// All that the toolkit can do is half of the numbers.
GUI_TEST(Range, OfAScaleThatIsTooWideChangesNothing)
{
    withKinds([&] {
        for (const Kind kind : {Slider, Progress}) {
            guiSetRange(kind, 1, 50);
            const Values before = valuesOf(kind);
            for (const auto& [min, max] : {std::pair{INT_MIN, 0},
                                           {INT_MIN, -5},
                                           {0, INT_MAX},
                                           {INT_MIN, INT_MAX},
                                           {1, INT_MAX / 2 + 2}}) {
                guiSetRange(kind, min, max);
                EXPECT_EQ(valuesOf(kind), before) << kind << ' ' << min << ' ' << max;
            }
            guiSetRange(kind, 1, INT_MAX / 2 + 1);
            EXPECT_EQ(valuesOf(kind).most, INT_MAX / 2);
        }
    });
}

GUI_TEST(Range, ThatIsNoneChangesNothing)
{
    withKinds([&] {
        for (const Kind kind : {Slider, Progress, Spin}) {
            guiSetRange(kind, 1, 50);
            guiSetPos(kind, 20);
            const Values before = valuesOf(kind);
            for (const auto& [min, max] :
                 {std::pair{30, 10}, {30, 30}, {60, 10}, {INT_MAX, INT_MIN + 1}}) {
                guiSetRange(kind, min, max);
                EXPECT_EQ(valuesOf(kind), before) << kind << ' ' << min << ' ' << max;
            }
        }
    });
}
