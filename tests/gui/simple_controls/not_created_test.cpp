// The toolkit makes no widget: the host hears of it, and the dialog is as it was.

#include "refused_widgets.h"
#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

struct Kind {
    std::string call;
    std::string widget;
    std::function<void(int id)> make;
};

const std::vector<Kind>& allKinds()
{
    static const std::vector<Kind> kinds{
        {"Label", "v_dlglabel", [](int id) { guiLabel(id, 0, 0, 40, "Text"); }},
        {"Edit", "v_dlgedit", [](int id) { guiEdit(id, 1, 0, 40, 0, 0); }},
        {"Button", "v_dlgbutton", [](int id) { guiButton(id, 2, 0, 40, "Text", 1); }},
        {"Check", "v_dlgcheck", [](int id) { guiCheck(id, 3, 0, 40, "Text"); }},
        {"Radio", "v_dlgradio", [](int id) { guiRadio(id, 4, 0, 40, "Text"); }},
        {"Line", "v_dlgline", [](int id) { guiLine(id, 5, 1, 0, 40); }},
        {"Image", "v_dlgimage", [](int id) { guiImage(id, 6, 2, 0, 40, 0); }},
    };
    return kinds;
}

}  // namespace

GUI_TEST(ControlNotCreated, IsReportedWithItsId)
{
    ASSERT_EQ(guiDialog(""), 0);
    for (const Kind& kind : allKinds()) {
        const RefusedWidgets refused{kind.widget};
        EXPECT_MISUSE(kind.make(12), kind.call + ": cannot create control 12");
    }
    EXPECT_EQ(controlsOfBoard().size(), 0U);
    guiClose(0);
}

// Its id is free, it is no default button, and it takes no room.
GUI_TEST(ControlNotCreated, LeavesNothingBehind)
{
    runDialog(
        [] {
            for (const Kind& kind : allKinds()) {
                const RefusedWidgets refused{kind.widget};
                errorsDuring([&] { kind.make(1); });
            }
            guiLabel(1, 0, 0, 10, "1");
        },
        [](Shown dialog) {
            EXPECT_EQ(XtName(controlOf(1)), std::string{"v_dlglabel"});
            EXPECT_FALSE(resource<Widget>(dialog.widget(), XmNdefaultButton));
            EXPECT_LT(placeOf(dialog.widget()).height, 3 * placeOf(controlOf(1)).height);
        });
}

// A control that was not made does not part a group.
GUI_TEST(ControlNotCreated, DoesNotPartRadioButtons)
{
    runDialog(
        [] {
            guiRadio(1, 0, 0, 40, "One");
            {
                const RefusedWidgets refused{"v_dlglabel"};
                EXPECT_MISUSE(guiLabel(-1, 1, 0, 40, ""), "Label: cannot create control -1");
            }
            guiRadio(2, 1, 0, 40, "Two");
        },
        [](Shown) { EXPECT_TRUE(isToggled(1) && !isToggled(2)); });
}
