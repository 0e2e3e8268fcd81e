// failure_report.h: at the first failure of a test, saves what the screen shows and the widget tree.

#pragma once

namespace kite::testing {

void reportFailuresWithPictures();

}  // namespace kite::testing
