// artefacts.h: what a failing test leaves behind: a picture of the screen and the widget tree.

#pragma once

#include <filesystem>
#include <string>

namespace kite::testing::artefacts {

// The name of the files, and the directory: KITE_TEST_ARTEFACTS, else test-artefacts in the build tree.
// Files that an earlier run has left are removed.
void begin(const std::string& testName);

std::filesystem::path pathOf(const std::string& extension);

// Both print where they have put it.
void saveScreen();
void saveWidgets();

}  // namespace kite::testing::artefacts
