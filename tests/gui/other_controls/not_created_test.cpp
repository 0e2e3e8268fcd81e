// The toolkit makes no widget: the host hears of it, and the dialog is as it was.

#include "other_controls_support.h"
#include "simple_controls/refused_widgets.h"

using namespace kite::testing;

namespace {

struct Failure {
    Kind kind;
    std::string widget;   // which is not made
    std::string message;  // without the id
};

// The words differ: hosts know them so.
const std::vector<Failure> kFailures{
    {kText, "v_dlgscroll", "Text: cannot create control "},
    {kText, "v_dlgtext", "Text: cannot create control "},
    {kTree, "v_dlgscroll", "Text: cannot create control "},
    {kTree, "v_dlgtree", "Tree: cannot create control "},
    {kSpin, "v_dlgspinbox", "spin: cannot create control "},
    {kSlider, "v_dlgscale", "Slider: cannot create control "},
    {kProgress, "v_dlgprogress", "progress: cannot create control "},
};

void make(Kind kind, int id)
{
    for (const KindOfControl& candidate : allKinds())
        if (candidate.kind == kind) candidate.make(id);
}

}  // namespace

GUI_TEST(OtherControlNotCreated, IsReportedWithItsId)
{
    ASSERT_EQ(guiDialog(""), 0);
    for (const Failure& failure : kFailures) {
        const RefusedWidgets refused{failure.widget};
        EXPECT_MISUSE(make(failure.kind, 12), failure.message + "12");
    }
    for (const Kind kind : {kSpin, kSlider, kProgress}) {
        const RefusedWidgets refused{kind == kSpin     ? "v_dlgspinbox"
                                     : kind == kSlider ? "v_dlgscale"
                                                       : "v_dlgprogress"};
        EXPECT_THAT(errorsDuring([&] { make(kind, -1); }),
                    ::testing::ElementsAre(::testing::EndsWith(": cannot create control -1")));
    }
    guiClose(0);
}

// The scrolled window goes with what should have stood in it; the id is free, and no room is taken.
GUI_TEST(OtherControlNotCreated, LeavesNothingBehind)
{
    runDialog(
        [] {
            for (const Failure& failure : kFailures) {
                const RefusedWidgets refused{failure.widget};
                errorsDuring([&] { make(failure.kind, 1); });
            }
            guiSpin(1, 0, 0, 40);
            settle();
            EXPECT_EQ(controlsOfBoard().size(), 1U);
        },
        [](Shown dialog) {
            EXPECT_EQ(XtName(controlOf(1)), std::string{"v_dlgspinbox"});
            EXPECT_LT(placeOf(dialog.widget()).height, 3 * placeOf(controlOf(1)).height);
        });
}
