// Boxes of a host that has an Xt application of its own, and no frame.

#include "box_kinds.h"

#include <Xm/Form.h>

using namespace kite::testing;

namespace {

// The host's application: a shell with a form.
class OwnApplication {
public:
    OwnApplication()
    {
        XtToolkitInitialize();
        context_ = XtCreateApplicationContext();
        int count = 0;
        Display* const display =
            XtOpenDisplay(context_, nullptr, "own", "Own", nullptr, 0, &count, nullptr);
        shell_ = XtVaAppCreateShell("own", "Own", applicationShellWidgetClass, display, XmNwidth,
                                    300, XmNheight, 200, nullptr);
        form_ = XtVaCreateManagedWidget("form", xmFormWidgetClass, shell_, nullptr);
        toolkit::attach(shell_);
        watchToolkitErrors(context_);
        XtRealizeWidget(shell_);
        EXPECT_TRUE(pumpUntil([&] { return isShown(form_) && wm::isSettled(shell_); }));
    }
    ~OwnApplication()
    {
        XtDestroyWidget(shell_);
        XtDestroyApplicationContext(context_);
    }
    OwnApplication(const OwnApplication&) = delete;
    OwnApplication& operator=(const OwnApplication&) = delete;

    Widget form() const { return form_; }

private:
    XtAppContext context_ = nullptr;
    Widget shell_ = nullptr;
    Widget form_ = nullptr;
};

}  // namespace

GUI_STARTUP_TEST(BoxOwner, IsTheParentOfBoxes)
{
    const OwnApplication own;
    guiSetOwner(own.form());
    for (const BoxKind& kind : allBoxes()) {
        const int answer = whileShown(kind, [&](Shown box) {
            EXPECT_EQ(XtParent(box.shell()), own.form());
            EXPECT_EQ(guiGetTopWnd(), box.widget());
        });
        EXPECT_EQ(answer, kind.choices.front().answer);
        EXPECT_FALSE(guiGetTopWnd());
    }
}

GUI_STARTUP_TEST(BoxOwner, HasMisuseReportedOnIt)
{
    const OwnApplication own;
    guiSetOwner(own.form());
    EXPECT_MISUSE(guiGetTextBox("?", nullptr, 5, 0), "GetTextBox: invalid buffer", -1);
}

GUI_STARTUP_TEST(BoxOwner, IsNoParentOfTips)
{
    const OwnApplication own;
    guiSetOwner(own.form());
    EXPECT_EQ(guiTipBox("Nobody sees this."), 0);
    EXPECT_FALSE(findWidget("p_menu"));
}

GUI_STARTUP_TEST(BoxOwner, OfNullIsNoOwner)
{
    const OwnApplication own;
    guiSetOwner(nullptr);
    for (const BoxKind& kind : allBoxes()) EXPECT_EQ(kind.ask("Anybody?"), kind.whenNotCreated);
}
