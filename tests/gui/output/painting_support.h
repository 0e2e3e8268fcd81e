// painting_support.h: what the screen shows of the Output area.

#pragma once

#include "output_support.h"

namespace kite::testing {

// A picture of the Output area as the server has it now.
class Shot {
public:
    Shot() : picture_(screen::grab(outputText())) {}

    bool differs() const { return screen::grab(outputText()) != picture_; }
    const screen::Picture& picture() const { return picture_; }

private:
    screen::Picture picture_;
};

// Longer than anything waits.
void letQuietPass();

// True when the screen shows what the text would paint from nothing.
bool isPainted();

// The same as an expectation, without a look at events before. Processes events afterwards.
void expectPainted(const std::string& after);

}  // namespace kite::testing
