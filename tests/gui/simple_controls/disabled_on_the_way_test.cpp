// A handler disables the control that the keyboard is just moving to: it moves on, to one that can be operated.

#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

enum Id { kFirst = 1, kTarget = 2, kLast = 3 };

struct Kind {
    const char* name;
    std::function<void(int id)> make;
};

const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> all{
        {"edit", [](int id) { guiEdit(id, 1, 0, 60, 0, 0); }},
        {"button", [](int id) { guiButton(id, 1, 0, 60, "Button", 0); }},
        {"check box", [](int id) { guiCheck(id, 1, 0, 60, "Check"); }},
        {"text", [](int id) { guiText(id, 1, 3, 0, 60, 0); }},
        {"choice", [](int id) { guiChoice(id, 1, 0, 60); }},
        {"combo box", [](int id) { guiCombo(id, 1, 0, 60); }},
        {"tree", [](int id) { guiTree(id, 1, 3, 0, 60); }},
        {"spin box", [](int id) { guiSpin(id, 1, 0, 60); }},
    };
    return all;
}

void expectMovedOn(const Kind& kind, const std::function<void(Shown)>& move)
{
    SCOPED_TRACE(kind.name);
    Recorder& recorder = Recorder::instance();
    recorder.onEvent(GUI_EVENT_LEFT, kFirst, [] { guiEnable(kTarget, 0); });
    runDialog(
        [&] {
            guiEdit(kFirst, 0, 0, 60, 0, 0);
            kind.make(kTarget);
            guiEdit(kLast, 5, 0, 60, 0, 0);
        },
        [&](Shown dialog) {
            ASSERT_TRUE(hasFocus(kFirst));
            move(dialog);
            EXPECT_EQ(guiIdStatus(kTarget), 0);
            recorder.forgetReactions();
            EXPECT_TRUE(pumpUntil([] { return guiGetFocus() == kFirst || guiGetFocus() == kLast; }))
                << guiGetFocus();
            dialog.type("x");
            char text[9];
            EXPECT_EQ(guiGetText(guiGetFocus(), text, sizeof text), 1);
        });
}

}  // namespace

GUI_TEST(DisabledOnTheWay, ByTheTabKey)
{
    for (const Kind& kind : kinds()) expectMovedOn(kind, [](Shown dialog) { dialog.key(XK_Tab); });
}

GUI_TEST(DisabledOnTheWay, ByAClick)
{
    for (const Kind& kind : kinds()) {
        if (std::string_view{kind.name} == "tree") continue;  // a click there goes to its window
        expectMovedOn(kind, [](Shown) { Robot::instance().click(controlOf(kTarget)); });
    }
}
