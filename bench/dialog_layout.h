// dialog_layout.h: the dialogs that both sides build: equal numbers of five simple controls, in a grid.

#pragma once

#include <array>
#include <string>

namespace bench {

enum class Kind { Label, Edit, Button, Check, Radio };
inline constexpr std::array kKinds{Kind::Label, Kind::Edit, Kind::Button, Kind::Check, Kind::Radio};

// In dialog units, tops too. Rows overlap, so that thousands of controls are on the screen.
inline constexpr int kColumns = 50;
inline constexpr int kColumnStep = 10;
inline constexpr int kRowStep = 4;
inline constexpr int kControlWidth = 9;

struct Place {
    Kind kind;
    int x, top;
};

constexpr Place placeOf(int number)
{
    return {kKinds[static_cast<std::size_t>(number) % kKinds.size()],
            number % kColumns * kColumnStep, number / kColumns * kRowStep};
}

inline std::string textOf(int number)
{
    return "T" + std::to_string(number);
}

}  // namespace bench
