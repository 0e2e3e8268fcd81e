// process_test.cpp: other programs run, talk and end as they should.

#include "gui_test.h"

#include <signal.h>

using namespace kite::testing;

GUI_TEST(Process, HasOutputAndStatus)
{
    Process process{{"sh", "-c", "echo out; echo err >&2; exit 7"}};
    ASSERT_TRUE(process.wait());
    EXPECT_EQ(process.exitStatus(), 7);
    EXPECT_EQ(process.output(), "out\nerr\n");
}

GUI_TEST(Process, GetsInputAndEnvironment)
{
    Process process{{"sh", "-c", "cat; echo $GREETING"}, {{"GREETING", "hello"}}, "input "};
    ASSERT_TRUE(process.wait());
    EXPECT_EQ(process.output(), "input hello\n");
}

GUI_TEST(Process, EndsBySignal)
{
    Process process{{"sleep", "600"}};
    EXPECT_TRUE(process.isRunning());
    EXPECT_FALSE(process.wait(milliseconds{20}));
    process.send(SIGTERM);
    ASSERT_TRUE(process.wait());
    EXPECT_EQ(process.exitStatus(), 128 + SIGTERM);
}

GUI_TEST(Process, ThatCannotBeStartedSaysSo)
{
    Process process{{"/no/such/program"}};
    ASSERT_TRUE(process.wait());
    EXPECT_EQ(process.exitStatus(), 127);
}

GUI_TEST(Process, EndsWithItsObject)
{
    pid_t pid = 0;
    {
        Process process{{"sleep", "600"}};
        pid = process.pid();
        EXPECT_EQ(kill(pid, 0), 0);
    }
    EXPECT_NE(kill(pid, 0), 0);
}
