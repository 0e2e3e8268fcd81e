// The text and the position of a spin box.

#include <Xm/SSpinB.h>
#include <Xm/TextF.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

Widget field()
{
    return resource<Widget>(outerOf(Spin), XmNtextField);
}

void withSpin(const std::function<void()>& body)
{
    runDialog({.fill = [&] {
        makeSpin(Spin);
        body();
    }});
}

}  // namespace

GUI_TEST(SpinBox, TakesTheNumberAtTheBeginningOfTheText)
{
    struct {
        const char* text;
        int value;
    } const rows[] = {{"42", 42}, {"42", 42}, {"12abc", 12}, {" 7", 7}, {"+5", 5},  {"100", 100},
                      {"0", 0},   {"abc", 0}, {"3", 3},      {"", 0},   {"9.9", 9}, {"1", 1}};
    withSpin([&] {
        for (const auto& row : rows) {
            guiSetText(Spin, row.text);
            EXPECT_EQ(textOf(field()), std::to_string(row.value)) << row.text;
            EXPECT_EQ(resource<int>(outerOf(Spin), XmNposition), row.value) << row.text;
            EXPECT_EQ(guiGetTextInt(Spin), row.value);
            EXPECT_EQ(guiGetTextDbl(Spin), row.value);
            EXPECT_EQ(guiGetTextLen(Spin), static_cast<int>(std::to_string(row.value).size()));
        }
    });
}

GUI_TEST(SpinBox, NumbersAreSetAsTheyAre)
{
    withSpin([] {
        guiSetTextInt(Spin, 31);
        EXPECT_EQ(textOf(field()), "31");
        guiSetTextDbl(Spin, 32.0);
        EXPECT_EQ(textOf(field()), "32");
        guiSetTextDbl(Spin, 33.7);
        EXPECT_EQ(textOf(field()), "33");
    });
}

GUI_TEST(SpinBox, SetPosIsOneMoreAndGetPosOneLess)
{
    withSpin([] {
        for (const int pos : {0, 5, 5, 41, 99, -1}) {
            guiSetPos(Spin, pos);
            EXPECT_EQ(textOf(field()), std::to_string(pos + 1));
            EXPECT_EQ(guiGetPos(Spin), pos);
        }
        guiSetText(Spin, "5");
        EXPECT_EQ(guiGetPos(Spin), 4);
    });
}

GUI_TEST(SpinBox, GetPosReadsWhatIsTyped)
{
    runDialog({.fill = [] { makeSpin(Spin); },
               .look =
                   [](Shown) {
                       XmTextFieldSetString(field(), const_cast<char*>("77x"));
                       EXPECT_EQ(guiGetTextInt(Spin), 77);
                       EXPECT_EQ(guiGetPos(Spin), 76);
                       XmTextFieldSetString(field(), const_cast<char*>(""));
                       EXPECT_EQ(guiGetPos(Spin), -1);
                       guiSetText(Spin, "5");
                       EXPECT_EQ(textOf(field()), "5");
                   }});
}

GUI_TEST(SpinBox, TheFieldIsRestoredWhenItIsSetToTheSamePosition)
{
    runDialog({.fill = [] { makeSpin(Spin); },
               .look =
                   [](Shown) {
                       guiSetText(Spin, "8");
                       XmTextFieldSetString(field(), const_cast<char*>("junk"));
                       guiSetText(Spin, "8");
                       EXPECT_EQ(textOf(field()), "8");
                   }});
}
