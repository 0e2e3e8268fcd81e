// last_words.h: what a hanging test says before the watchdog ends it: its stack and its widgets.

#pragma once

#include <csignal>

namespace kite::testing {

// The watchdog asks with this signal: the test prints its stack at once, and its widgets at the next turn
// of a loop. Asked once more, it is in no loop and prints them right there, which may go wrong.
inline constexpr int kLastWordsSignal = SIGUSR2;

void prepareLastWords();

// For every loop of the harness. Does not return when the watchdog has asked.
void speakLastWordsIfAsked();

}  // namespace kite::testing
