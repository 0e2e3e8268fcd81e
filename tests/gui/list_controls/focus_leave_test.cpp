// Which field the user has left: edits are told of, combo boxes as a rule are not.

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

enum Id { kEdit = 1, kList, kChoice, kCombo, kOtherCombo };

void build()
{
    guiEdit(kEdit, 0, 0, 60, 0, 0);
    guiList(kList, 1, 4, 0, 60, GUI_BROWSE);
    guiChoice(kChoice, 5, 0, 60);
    guiCombo(kCombo, 6, 0, 60);
    guiCombo(kOtherCombo, 7, 0, 60);
    guiLabel(-1, 18, 0, 60, "Room for the lists");
}

void run(const std::function<void(Shown)>& use)
{
    runDialog({.build = build,
               .fill =
                   [] {
                       for (const int id : {kList, kChoice, kCombo, kOtherCombo})
                           appendItems(id, 4);
                   },
               .use = use});
}

void goTo(int id)
{
    Robot::instance().click(id == kEdit ? controlOf(id) : id == kList ? listOf(id) : fieldOf(id));
}

}  // namespace

GUI_TEST(ListFocusLeave, EditIsLeftForEachOfThem)
{
    run([](Shown dialog) {
        for (const int id : {kChoice, kCombo}) {
            SCOPED_TRACE(id);
            goTo(kEdit);
            EXPECT_THAT(eventsDuring([&] { goTo(id); }), ElementsAre(left(kEdit)));
        }
        goTo(kEdit);
        EXPECT_THAT(eventsDuring([] { clickItem(kList, 2); }),
                    ElementsAre(left(kEdit), selected(kList, 2)));
        goTo(kEdit);
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab); }), ElementsAre(left(kEdit)))
            << "for the list, by key";
    });
}

GUI_TEST(ListFocusLeave, EditIsLeftBeforeTheEventOfAPick)
{
    run([](Shown) {
        for (const int id : {kChoice, kCombo}) {
            SCOPED_TRACE(id);
            goTo(kEdit);
            const auto events = eventsDuring([&] {
                clickArrow(id);
                ASSERT_TRUE(waitUntilOpen(id));
                clickItem(id, 2);
                EXPECT_TRUE(waitUntilClosed(id));
            });
            ASSERT_FALSE(events.empty());
            EXPECT_EQ(events.front(), left(kEdit));
            EXPECT_EQ(events.back(), picked(id, 2));
            EXPECT_THAT(only(GUI_EVENT_LEFT, events), ElementsAre(left(kEdit)));
        }
    });
}

GUI_TEST(ListFocusLeave, ComboIsNotToldOf)
{
    run([](Shown dialog) {
        for (const int id : {kEdit, kChoice, kOtherCombo}) {
            SCOPED_TRACE(id);
            goTo(kCombo);
            EXPECT_THAT(eventsDuring([&] { goTo(id); }), IsEmpty());
            goTo(kChoice);
        }
        goTo(kCombo);
        EXPECT_THAT(eventsDuring([] { clickItem(kList, 2); }), ElementsAre(selected(kList, 2)));
        goTo(kCombo);
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab); }), IsEmpty());
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab, Shift); }), IsEmpty());
    });
}

// The text that was typed is reported as a pick, and every pick first tells what has been left.
GUI_TEST(ListFocusLeave, ComboIsToldOfWithTheTextThatWasTyped)
{
    run([](Shown dialog) {
        goTo(kCombo);
        dialog.type("x");
        const auto events = eventsDuring([&] { dialog.key(XK_Tab); });
        ASSERT_EQ(events.size(), 2U);
        EXPECT_EQ(events[0], left(kCombo));
        EXPECT_EQ(events[1].event, GUI_EVENT_VALUE);
        EXPECT_EQ(events[1].id, kCombo);
    });
}

// Its own list has the keyboard then.
GUI_TEST(ListFocusLeave, ComboIsNotLeftForItsOwnList)
{
    run([](Shown) {
        goTo(kCombo);
        const auto events = eventsDuring([] {
            clickArrow(kCombo);
            ASSERT_TRUE(waitUntilOpen(kCombo));
            clickItem(kCombo, 1);
            EXPECT_TRUE(waitUntilClosed(kCombo));
        });
        EXPECT_THAT(only(GUI_EVENT_LEFT, events), IsEmpty());
    });
}

// As an edit is: the window below hears of it.
GUI_TEST(ListFocusLeave, ComboIsToldOfWhenTheDialogIsClosed)
{
    run([this](Shown) {
        goTo(kCombo);
        recorder.clear();
    });
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_LEFT, kCombo, 1)));
}
