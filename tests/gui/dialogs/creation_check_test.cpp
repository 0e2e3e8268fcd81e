// The check that all constructors of controls begin with.

#include <climits>

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

constexpr int kIds[] = {INT_MIN, -32768, -3, -2, -1, 0, 1, 2, 32766, 32767, 32768, 65537, INT_MAX};

bool isValid(int id, int lowestId)
{
    if (id == -1) return lowestId == -1;
    if (id == 0) return lowestId == 0;
    return id >= 1 && id <= 32767;
}

void expectNoDialogBuilt()
{
    for (const ControlKind& kind : allControls())
        for (const int id : {1, -2, 32768}) {
            SCOPED_TRACE(id);
            EXPECT_MISUSE(kind.make(id, 0), kind.name + ": no dialog is built at the moment");
        }
}

}  // namespace

GUI_STARTUP_TEST(CreationCheck, FailsSilentlyWithoutAnyWindow)
{
    for (const ControlKind& kind : allControls()) kind.make(1, 0);
    app.init();
    EXPECT_FALSE(board());
}

GUI_TEST(CreationCheck, NeedsADialogUnderConstruction)
{
    // Needs a dialog under construction.
    expectNoDialogBuilt();

    // Fails after an abandoned dialog.
    buildDialog();
    guiClose(0);
    EXPECT_MISUSE(guiLabel(1, 0, 0, 10, "Late"), "Label: no dialog is built at the moment");

    // Fails when the dialog is to be started.
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
        ASSERT_EQ(guiDialog("Dialog"), 0);
        guiStartDialog();
        expectNoDialogBuilt();
        EXPECT_EQ(controlCount(), 0);
        guiClose(0);
    });
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, 1)), 1);

    recorder.forgetReactions();
    // Fails while the dialog runs.
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        EXPECT_MISUSE(guiLabel(-1, 0, 0, 10, "Late"), "Label: no dialog is built at the moment");
    });
    buildDialog();
    EXPECT_EQ(runWhileShown([&](Shown) {
                  expectNoDialogBuilt();
                  EXPECT_EQ(controlCount(), 1);
              }),
              1);
    EXPECT_MISUSE(guiLine(-1, 0, 1, 0, 10), "Line: no dialog is built at the moment");
}

// Both sides of every limit.
GUI_TEST(CreationCheck, AcceptsTheIdsOfEachKind)
{
    for (const ControlKind& kind : allControls())
        for (const int id : kIds) {
            SCOPED_TRACE(kind.name + ' ' + std::to_string(id));
            ASSERT_EQ(guiDialog("Ids"), 0);
            if (isValid(id, kind.lowestId)) {
                EXPECT_THAT(errorsDuring([&] { kind.make(id, 0); }), IsEmpty());
                ASSERT_EQ(controlCount(), 1);
                EXPECT_EQ(tagOf(childrenOf(board()).front()), tagFor(id, kind.type));
            } else {
                EXPECT_MISUSE(kind.make(id, 0),
                              kind.name + ": invalid control id " + std::to_string(id));
                EXPECT_EQ(controlCount(), 0);
            }
            guiClose(0);
        }
}

GUI_TEST(CreationCheck, AcceptsAnyNumberOfAnonymousControls)
{
    ASSERT_EQ(guiDialog("Anonymous"), 0);
    EXPECT_THAT(errorsDuring([] {
                    for (int row = 0; row < 3; ++row) {
                        guiLabel(GUI_ANONYMOUS, row, 0, 20, "Label");
                        guiLine(GUI_ANONYMOUS, row, 1, 0, 20);
                    }
                }),
                IsEmpty());
    EXPECT_EQ(controlCount(), 6);
}

GUI_TEST(CreationCheck, RefusesDuplicateIds)
{
    // Refuses duplicate ids.
    for (std::size_t i = 0; i < allControls().size(); ++i) {
        const ControlKind& first = allControls()[i];
        const ControlKind& second = allControls()[(i + 1) % allControls().size()];
        const int id = i % 2 ? 32767 : 1;
        SCOPED_TRACE(first.name + " and " + second.name);
        ASSERT_EQ(guiDialog("Ids"), 0);
        guiCheck(5, 0, 0, 20, "Between");
        first.make(id, 1);
        EXPECT_MISUSE(second.make(id, 2),
                      second.name + ": duplicate control id " + std::to_string(id));
        EXPECT_MISUSE(first.make(id, 2),
                      first.name + ": duplicate control id " + std::to_string(id));
        EXPECT_EQ(controlCount(), 2);
        EXPECT_EQ(tagOf(control(id)), tagFor(id, first.type));
        guiClose(0);
    }

    // Refuses a second cancel button.
    ASSERT_EQ(guiDialog("Ids"), 0);
    guiButton(GUI_CANCEL_BUTTON, 0, 0, 20, "Cancel", 0);
    EXPECT_MISUSE(guiButton(0, 1, 0, 20, "Cancel", 0), "Button: duplicate control id 0");
    EXPECT_EQ(controlCount(), 1);
}

GUI_TEST(CreationCheck, IdsAreFreeAgainInTheNextDialog)
{
    EXPECT_THAT(errorsDuring([] {
                    buildDialog("Abandoned");
                    guiClose(0);
                    buildDialog("Run");
                    runWhileShown([](Shown) {
                        buildDialog("Inside");  // the same id in both at the same time
                        runWhileShown([](Shown) {});
                    });
                    buildDialog("Again");
                }),
                IsEmpty());
    EXPECT_EQ(controlCount(), 1);
}

// What was refused is no control of the dialog.
GUI_TEST(CreationCheck, RefusedControlsLeaveNoTrace)
{
    ASSERT_EQ(guiDialog("Ids"), 0);
    guiLabel(1, 0, 0, 20, "Label");
    EXPECT_MISUSE(guiButton(1, 50, 0, 200, "Button", 1), "Button: duplicate control id 1");
    EXPECT_MISUSE(guiButton(-2, 50, 0, 200, "Button", 1), "Button: invalid control id -2");
    guiLabel(2, 1, 0, 20, "Label");
    EXPECT_EQ(runWhileShown([](Shown dialog) {
                  EXPECT_EQ(controlCount(), 2);
                  EXPECT_EQ(resource<Widget>(dialog.widget(), XmNdefaultButton), nullptr);
                  EXPECT_LT(rectOf(dialog.widget()).height, 150);
              }),
              1);
}
