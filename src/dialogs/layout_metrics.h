// layout_metrics.h: the measures of dialogs, in dialog units.

#pragma once

namespace kite::layout {

inline constexpr int kMargin = 7;  // on all four sides of a dialog
inline constexpr int kRowStep = 14;
inline constexpr int kRowGap = 2;  // what a control of whole rows leaves free below

inline constexpr int kTallestControl = 12;
inline constexpr int kLabelHeight = 8;
inline constexpr int kEditHeight = 12;
inline constexpr int kButtonHeight = 12;
inline constexpr int kCheckHeight = 10;
inline constexpr int kRadioHeight = 10;
inline constexpr int kChoiceHeight = 12;

}  // namespace kite::layout
