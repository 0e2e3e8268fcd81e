// Radio buttons: groups of those that stand next to each other.

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kRadios = 7;

// Radio buttons 1 to 7, of which 1 and 2, 3 to 5, 6, and 7 are groups.
void buildGroups()
{
    guiRadio(1, 0, 0, 40, "One");
    guiRadio(2, 1, 0, 40, "Two");
    guiLabel(-1, 2, 0, 40, "Label");
    guiRadio(3, 3, 0, 40, "Three");
    guiRadio(4, 4, 0, 40, "Four");
    guiRadio(5, 5, 0, 40, "Five");
    guiLine(-1, 6, 1, 0, 40);
    guiRadio(6, 7, 0, 40, "Six");
    guiCheck(100, 8, 0, 40, "Check");
    guiRadio(7, 9, 0, 40, "Seven");
}

std::vector<int> idsSet()
{
    std::vector<int> ids;
    for (int id = 1; id <= kRadios; ++id)
        if (isToggled(id)) ids.push_back(id);
    return ids;
}

std::vector<Event> eventsOfClick(int id)
{
    return eventsDuring([&] { Robot::instance().click(controlOf(id)); });
}

Event selected(int id)
{
    return toDialog(GUI_EVENT_RADIO, id, 1);
}

}  // namespace

GUI_TEST(RadioGroup, HasItsFirstMemberSetAtFirst)
{
    runDialog(buildGroups, [](Shown) { EXPECT_THAT(idsSet(), ElementsAre(1, 3, 6, 7)); });
}

GUI_TEST(RadioGroup, HasOneMemberSet)
{
    runDialog(buildGroups, [](Shown) {
        EXPECT_THAT(eventsOfClick(2), ElementsAre(selected(2)));
        EXPECT_THAT(idsSet(), ElementsAre(2, 3, 6, 7));
        EXPECT_THAT(eventsOfClick(5), ElementsAre(selected(5)));
        EXPECT_THAT(idsSet(), ElementsAre(2, 5, 6, 7));
        EXPECT_THAT(eventsOfClick(4), ElementsAre(selected(4)));
        EXPECT_THAT(idsSet(), ElementsAre(2, 4, 6, 7));
        EXPECT_THAT(eventsOfClick(1), ElementsAre(selected(1)));
        EXPECT_THAT(idsSet(), ElementsAre(1, 4, 6, 7));
    });
}

GUI_TEST(RadioGroup, TakesTheSpaceBarAsAClick)
{
    runDialog(buildGroups, [](Shown dialog) {
        dialog.key(XK_Tab);
        ASSERT_TRUE(hasFocus(2));
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_space); }), ElementsAre(selected(2)));
        EXPECT_THAT(idsSet(), ElementsAre(2, 3, 6, 7));
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_space); }), IsEmpty());
        EXPECT_THAT(idsSet(), ElementsAre(2, 3, 6, 7));
    });
}

GUI_TEST(RadioGroup, MemberThatIsSetStaysSo)
{
    runDialog(buildGroups, [](Shown) {
        for (const int id : {1, 3, 6, 7})
            for (int times = 0; times < 2; ++times) EXPECT_THAT(eventsOfClick(id), IsEmpty()) << id;
        EXPECT_THAT(idsSet(), ElementsAre(1, 3, 6, 7));
    });
}

// The host has set several, or none: the user's choice puts it right.
GUI_TEST(RadioGroup, IsPutRightByTheUser)
{
    runDialog(buildGroups, [](Shown) {
        guiSetCheck(4, 1);
        guiSetCheck(5, 1);
        guiSetCheck(1, 0);
        EXPECT_THAT(idsSet(), ElementsAre(3, 4, 5, 6, 7));
        guiSetCheck(4, 0);
        EXPECT_THAT(eventsOfClick(4), ElementsAre(selected(4)));
        EXPECT_THAT(eventsOfClick(1), ElementsAre(selected(1)));
        EXPECT_THAT(idsSet(), ElementsAre(1, 4, 6, 7));
    });
}

// They are members still.
GUI_TEST(RadioGroup, ReachesAcrossHiddenAndDisabledMembers)
{
    runDialog(buildGroups, [](Shown) {
        guiSetVisible(4, 0);
        settle();
        EXPECT_THAT(eventsOfClick(5), ElementsAre(selected(5)));
        EXPECT_THAT(idsSet(), ElementsAre(1, 5, 6, 7));
        EXPECT_THAT(eventsOfClick(3), ElementsAre(selected(3)));
        EXPECT_THAT(idsSet(), ElementsAre(1, 3, 6, 7));
    });

    runDialog(buildGroups, [](Shown) {
        guiEnable(3, 0);
        guiEnable(4, 0);
        EXPECT_THAT(eventsOfClick(5), ElementsAre(selected(5)));
        EXPECT_THAT(idsSet(), ElementsAre(1, 5, 6, 7));
    });
}

// Something invisible parts groups as well.
GUI_TEST(RadioGroup, EndsAtEveryOtherControl)
{
    const std::function<void()> partings[] = {
        [] { guiLabel(-1, 0, 0, 0, ""); },     [] { guiEdit(10, 8, 0, 40, 0, 0); },
        [] { guiButton(10, 8, 0, 0, "", 0); }, [] { guiCheck(10, 8, 0, 40, ""); },
        [] { guiLine(-1, 8, 3, 0, 1); },       [] { guiLine(-1, 0, 8, 0, 60); },
        [] { guiImage(10, 8, 1, 0, 40, 0); },
    };
    for (const auto& part : partings) {
        SCOPED_TRACE(&part - partings);
        runDialog(
            [&] {
                guiRadio(1, 0, 0, 40, "One");
                guiRadio(2, 1, 0, 40, "Two");
                part();
                guiRadio(3, 2, 0, 40, "Three");
                guiRadio(4, 3, 0, 40, "Four");
            },
            [](Shown) {
                const auto isSet = [](int id) { return isToggled(id); };
                EXPECT_TRUE(isSet(1) && !isSet(2) && isSet(3) && !isSet(4));
                eventsOfClick(4);
                EXPECT_TRUE(isSet(1) && !isSet(2) && !isSet(3) && isSet(4));
            });
    }

    runDialog(
        [] {
            guiRadio(1, 0, 0, 40, "One");
            guiLine(-1, 1, 1, 0, 0);
            guiRadio(2, 1, 0, 40, "Two");
        },
        [](Shown) {
            EXPECT_FALSE(isToggled(2));
            eventsOfClick(2);
            EXPECT_FALSE(isToggled(1));
        });
}

GUI_TEST(RadioGroup, IsInOrderWhenTheHandlerIsCalled)
{
    std::vector<int> states;
    recorder.onEvent(GUI_EVENT_RADIO, 2, [&] { states = {guiGetCheck(1), guiGetCheck(2)}; });
    runDialog(buildGroups, [](Shown) { eventsOfClick(2); });
    EXPECT_THAT(states, ElementsAre(0, 1));
}
