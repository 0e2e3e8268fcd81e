#include <gtest/gtest.h>

#include "failure_report.h"

#include "artefacts.h"

namespace kite::testing {

namespace {

class Reporter : public ::testing::EmptyTestEventListener {
    void OnTestPartResult(const ::testing::TestPartResult& result) override
    {
        // Saving runs the harness itself, which may fail as well.
        if (!result.failed() || hasReported_) return;
        hasReported_ = true;
        artefacts::saveScreen();
        artefacts::saveWidgets();
    }

    bool hasReported_ = false;
};

}  // namespace

void reportFailuresWithPictures()
{
    // GoogleTest owns it.
    ::testing::UnitTest::GetInstance()->listeners().Append(new Reporter);
}

}  // namespace kite::testing
