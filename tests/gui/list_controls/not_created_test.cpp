// The toolkit makes no widget: the host hears of it, and the dialog is as it was.

#include "list_controls_support.h"
#include "simple_controls/refused_widgets.h"

using namespace kite::testing;

namespace {

struct Kind {
    std::string words;
    std::string widget;
    std::function<void(int id)> make;
};

// A combo box says what an edit says.
const std::vector<Kind>& allKinds()
{
    const auto makeList = [](int id) { guiList(id, 0, 9, 0, 40, GUI_BROWSE); };
    static const std::vector<Kind> kinds{
        {"List", "v_dlgscroll", makeList},
        {"List", "v_dlglist", makeList},
        {"Choice", "v_dlgchoice", [](int id) { guiChoice(id, 1, 0, 40); }},
        {"Edit", "v_dlgcombo", [](int id) { guiCombo(id, 2, 0, 40); }},
    };
    return kinds;
}

}  // namespace

GUI_TEST(ListControlNotCreated, IsReportedWithItsId)
{
    ASSERT_EQ(guiDialog(""), 0);
    for (const Kind& kind : allKinds()) {
        SCOPED_TRACE(kind.widget);
        const RefusedWidgets refused{kind.widget};
        EXPECT_MISUSE(kind.make(12), kind.words + ": cannot create control 12");
    }
    EXPECT_EQ(childrenOf(newestBoard()).size(), 0U) << "a scrolled window without its list";
    guiClose(0);
}

// Its id is free, and it takes no room.
GUI_TEST(ListControlNotCreated, LeavesNothingBehind)
{
    runDialog({.build =
                   [] {
                       for (const Kind& kind : allKinds()) {
                           const RefusedWidgets refused{kind.widget};
                           errorsDuring([&] { kind.make(1); });
                       }
                       guiLabel(1, 0, 0, 10, "1");
                   },
               .use =
                   [](Shown dialog) {
                       EXPECT_EQ(XtName(controlOf(1)), std::string{"v_dlglabel"});
                       EXPECT_LT(placeOf(dialog.widget()).height, 3 * placeOf(controlOf(1)).height);
                   }});
}
