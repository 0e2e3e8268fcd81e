// library_dialog.h: the controls of bare_dialog.h, by the library.

#pragma once

namespace bench {

// With the id number + 1. Positions have to be absolute.
void addControl(int number);

}  // namespace bench
