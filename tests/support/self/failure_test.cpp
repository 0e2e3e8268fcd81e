// failure_test.cpp: what should fail a test does, says why and leaves a picture.

#include "gui_test.h"

#include <filesystem>

#include "environment.h"

using namespace kite::testing;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

namespace fs = std::filesystem;

class Failing {
public:
    // On the display of this test: the program finds that it is the tests' own.
    explicit Failing(const std::string& name, const std::string& deadline = "60")
        : name_("FailingCase." + name), process_{{KITE_FAILING_CASES, "--gtest_filter=" + name_},
                                                 {{"KITE_TEST_ARTEFACTS", directory()},
                                                  {"KITE_TEST_DEADLINE", deadline},
                                                  {"KITE_TEST_PATIENCE", "0.4"}}}
    {
        EXPECT_TRUE(process_.wait(seconds{60}));
        EXPECT_EQ(process_.exitStatus(), 1);
    }

    std::string output() const { return process_.output(); }
    bool hasLeft(const std::string& extension) const
    {
        const fs::path path =
            directory() + '/' + name_ + '.' + environment("KITE_TEST_WM") + extension;
        return fs::exists(path) && fs::file_size(path) > 0;
    }

private:
    static std::string directory() { return fs::current_path().string() + "/artefacts"; }

    std::string name_;
    Process process_;
};

}  // namespace

GUI_STARTUP_TEST(Watchdog, EndsAHangingTestWithPictureAndWidgets)
{
    const Failing test{"Hangs", "2"};
    EXPECT_THAT(test.output(), HasSubstr("the test still runs after 2 s"));
    EXPECT_THAT(test.output(), HasSubstr("FailingCase_Hangs")) << "the stack";
    EXPECT_TRUE(test.hasLeft(".png"));
    EXPECT_TRUE(test.hasLeft(".widgets.txt")) << test.output();
}

GUI_STARTUP_TEST(Watchdog, EndsATestThatIsInNoLoop)
{
    const Failing test{"HangsInNoLoop", "2"};
    EXPECT_THAT(test.output(), HasSubstr("pause")) << "the stack";
    EXPECT_TRUE(test.hasLeft(".png"));
    EXPECT_TRUE(test.hasLeft(".widgets.txt")) << test.output();
}

GUI_STARTUP_TEST(Watchdog, EndsATestThatDoesNotAnswer)
{
    const Failing test{"HangsDeaf", "2"};
    EXPECT_THAT(test.output(), HasSubstr("the test still runs after 2 s"));
    EXPECT_TRUE(test.hasLeft(".png"));
}

GUI_STARTUP_TEST(Watchdog, ReportsACrash)
{
    const Failing test{"Crashes"};
    EXPECT_THAT(test.output(), HasSubstr("ended by signal 6 (Aborted)"));
    EXPECT_TRUE(test.hasLeft(".png"));
}

struct Expectation {
    std::string name;
    std::string text;
};

void PrintTo(const Expectation& expectation, std::ostream* out)
{
    *out << expectation.name;
}

class Failure : public ::testing::TestWithParam<Expectation> {};

TEST_P(Failure, SaysWhyAndLeavesPictureAndWidgets)
{
    const Failing test{GetParam().name};
    EXPECT_THAT(test.output(), HasSubstr(GetParam().text));
    EXPECT_THAT(test.output(), Not(HasSubstr("WATCHDOG")));
    EXPECT_TRUE(test.hasLeft(".png"));
    EXPECT_TRUE(test.hasLeft(".widgets.txt")) << test.output();
}

INSTANTIATE_TEST_SUITE_P(
    , Failure,
    ::testing::Values(
        Expectation{"ScriptIsNotPlayed", "This never happened: v_askbox is shown"},
        Expectation{"XError", "BadWindow (invalid Window parameter), request X_MapWindow"},
        Expectation{"ToolkitWarning", "Illegal value (77)"},
        Expectation{"ExpectedXErrorDoesNotCome", "The X error 3 did not come."},
        Expectation{"ExpectedWarningDoesNotCome", "\"Illegal value\" did not come."},
        Expectation{"MisuseSaysSomethingElse", "\"GetDropName: invalid buffer\""},
        Expectation{"MisuseReturnsSomethingElse", "Which is: -1"},
        Expectation{"NoMisuse", "SetProgress: invalid value"},
        Expectation{"ClickOnNothing", "There is no widget v_nothing"},
        Expectation{"ClickOnWhatIsNotShown", "The widget \"v_gauge\" is not shown."},
        Expectation{"ClickOnWhatIsCovered", "Something covers the widget \"v_text\""}),
    [](const auto& test) { return test.param.name; });

GUI_STARTUP_TEST(ToolkitErrors, FatalOnesEndTheTest)
{
    const Failing test{"ToolkitError"};
    EXPECT_THAT(test.output(), HasSubstr("Fatal toolkit error: this is fatal"));
}

GUI_TEST(ToolkitErrors, ThatAreExpectedAreNoFailures)
{
    const ExpectedXError error{BadWindow};
    const ExpectedWarning warning{"Illegal value"};
    XMapWindow(toolkit::display(), 1);
    XSync(toolkit::display(), False);
    XtVaSetValues(app.find("v_text"), XmNunitType, 77, nullptr);
    EXPECT_EQ(error.count(), 1);
    EXPECT_EQ(warning.count(), 1);
}

GUI_STARTUP_TEST(TestProgram, RunsEachTestInAProcessOfItsOwn)
{
    Process process{{KITE_FAILING_CASES, "--gtest_filter=*OneOfTwo*"}};
    ASSERT_TRUE(process.wait(seconds{30}));
    EXPECT_EQ(process.exitStatus(), 1);
    EXPECT_THAT(process.output(), HasSubstr("[   FAILED ] FailingCase.OneOfTwoThatFails"));
    EXPECT_THAT(process.output(), HasSubstr("[   PASSED ] PassingCase.OneOfTwoThatPasses"));
}

GUI_STARTUP_TEST(TestProgram, FailsWhenAFilterSelectsNothing)
{
    Process process{{KITE_FAILING_CASES, "--gtest_filter=NoSuch*"}};
    ASSERT_TRUE(process.wait());
    EXPECT_EQ(process.exitStatus(), 1);
}

GUI_STARTUP_TEST(TestProgram, ListsItsTestsWithoutADisplay)
{
    Process process{{KITE_FAILING_CASES, "--gtest_list_tests"}, {{"DISPLAY", ""}, {"PATH", ""}}};
    ASSERT_TRUE(process.wait());
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_THAT(process.output(), HasSubstr("OneOfTwoThatPasses"));
}
