// Hosts with an Xt application of their own, as separate programs.

#include "environment.h"
#include "events_support.h"

using namespace kite::testing;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

// Waits for the question, answers it by key, and returns what the program printed.
std::string answerWith(Process& program, KeySym key)
{
    Window const question = wm::waitForWindow("Kite");
    EXPECT_NE(question, 0u) << program.output();
    EXPECT_TRUE(wm::waitForFocus(question));
    Robot::instance().key(key);
    EXPECT_TRUE(program.wait());
    EXPECT_EQ(program.exitStatus(), 0) << program.output();
    return program.output();
}

}  // namespace

GUI_STARTUP_TEST(OwnerHost, GetsTheAnswer)
{
    Process program{{KITE_OWNER_HOST}};
    EXPECT_THAT(answerWith(program, XK_Return), HasSubstr("answer 1\n"));
}

GUI_STARTUP_TEST(OwnerHost, GetsTheAnswerOfTheCancelKey)
{
    Process program{{KITE_OWNER_HOST}};
    EXPECT_THAT(answerWith(program, XK_Escape), HasSubstr("answer 0\n"));
}

GUI_STARTUP_TEST(OwnerHost, WindowOwnsTheBox)
{
    Process program{{KITE_OWNER_HOST}};
    Window const question = wm::waitForWindow("Kite");
    EXPECT_EQ(wm::transientFor(question), wm::waitForWindow("owner_host"));
    answerWith(program, XK_Return);
}

// Both libraries define the vendor shell; Motif's windows work with Motif's only.
GUI_STARTUP_TEST(OwnerHost, MayBeLinkedWithTheIntrinsicsFirst)
{
    Process program{{KITE_OWNER_HOST_XT_FIRST}};
    const std::string output = answerWith(program, XK_Return);
    EXPECT_THAT(output, StartsWith("first libXt\n"));
    EXPECT_THAT(output, HasSubstr("answer 1\n"));
}

GUI_STARTUP_TEST(OwnerHost, MayCloseItsDisplayAndLeaveItsWidgets)
{
    // The memory of the widgets is what it leaves.
    const std::string options = environment("ASAN_OPTIONS") + ":detect_leaks=0";
    Process program{{KITE_OWNER_HOST, "leave-widgets"}, {{"ASAN_OPTIONS", options}}};
    EXPECT_THAT(answerWith(program, XK_Return), HasSubstr("answer 1\n"));
}
