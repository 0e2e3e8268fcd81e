// A host that cannot start says so on its standard output and ends.

#include <filesystem>

#include "gui_test.h"
#include "host_process.h"

using namespace kite::testing;

namespace {

void expectNoDisplay(Process& program)
{
    ASSERT_TRUE(program.wait());
    EXPECT_EQ(program.output(), "Cannot open display\n");
    EXPECT_EQ(program.exitStatus(), 1);
}

}  // namespace

GUI_STARTUP_TEST(StartFailure, OfADisplayThatIsNotThere)
{
    const HostFiles files;
    HostProcess program{files, {}, {{"DISPLAY", ":9999"}}};
    expectNoDisplay(program);
}

GUI_STARTUP_TEST(StartFailure, OfADisplayThatIsNoName)
{
    const HostFiles files;
    HostProcess program{files, {}, {{"DISPLAY", "nonsense"}}};
    expectNoDisplay(program);
}

GUI_STARTUP_TEST(StartFailure, OfAnEmptyDisplay)
{
    const HostFiles files;
    HostProcess program{files, {}, {{"DISPLAY", ""}}};
    expectNoDisplay(program);
}

GUI_STARTUP_TEST(StartFailure, WithoutADisplay)
{
    Process program{{"env", "-u", "DISPLAY", FRAME_HOST}};
    expectNoDisplay(program);
}

GUI_STARTUP_TEST(StartFailure, IsPrintedOnStandardOutput)
{
    Process program{{"sh", "-c", "DISPLAY= '" FRAME_HOST "' 2>/dev/null"}};
    expectNoDisplay(program);
}

GUI_STARTUP_TEST(StartFailure, ComesBeforeTheLog)
{
    const HostFiles files;
    files.setProfile("logfm = 1\nlogfn = " + files.path("output.log") + "\n");
    HostProcess program{files, {}, {{"DISPLAY", ":9999"}}};
    expectNoDisplay(program);
    EXPECT_FALSE(std::filesystem::exists(files.path("output.log")));
}
