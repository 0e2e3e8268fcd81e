// pictures.h: picture files, and what a control shows of them.

#pragma once

#include <string>

#include "bmp_file.h"
#include "dialog_plan.h"

namespace kite::testing {

// Constructs the controls that show pictures: 1 is a framed image, 2 one without a frame, 3 a push button.
void buildPictured();

// No two neighbouring pixels are alike, so that every shift shows.
screen::Colour patternAt(int x, int y);

// Makes a file of that pattern in the application directory. Returns its path.
std::string patternFile(const std::string& name, int width, int height);

// One pixel of red in a picture that draws nothing else.
std::string holedFile(const std::string& name, int width, int height);

screen::Colour backgroundOf(Widget control);

// Inside the shadow: the pattern's upper left part in that size, and the background around it.
void expectPattern(Widget control, int width, int height);

// Nothing but background inside the shadow.
void expectCleared(Widget control);

}  // namespace kite::testing
