// text_attributes_support.h: what the tests of colours and fonts share.

#pragma once

#include <string>
#include <vector>

#include "operations/dialog_plan.h"
#include "operations/hand_made_controls.h"

namespace kite::testing {

inline constexpr char kHelvetica[] =
    "-adobe-helvetica-medium-r-normal--14-100-100-100-p-*-iso8859-1";
inline constexpr char kFixed[] = "-misc-fixed-medium-r-normal--14-110-100-100-c-*-iso8859-1";
inline constexpr char kCourier[] = "-adobe-courier-bold-r-normal--24-240-75-75-m-*-iso8859-1";
inline constexpr char kHuge[] = "-adobe-courier-bold-r-normal--34-240-100-100-m-*-iso8859-1";
inline constexpr char kSmallest[] = "-adobe-courier-medium-r-normal--10-100-75-75-m-*-iso8859-1";
inline constexpr char kMissing[] = "-nobody-nothing-medium-r-normal--14-*-*-*-*-*-iso8859-1";

// A dialog with one control of every kind, in the moment before it is seen; the kind is the id.
void withAllKinds(const std::function<void()>& body);

// The two colours of a widget; of a progress bar that of the filled part and its background.
struct Look {
    Pixel foreground;
    Pixel background;

    bool operator==(const Look&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Look& look);
Look lookOf(Widget widget);
Look lookOfKind(int kind);

// Colours that nobody asks for.
void disguise(int kind);
Look disguised();

Pixel black();
Pixel white();
Pixel pixelOf(int red, int green, int blue);  // of X components
Pixel red();                                  // as "#ff0000" is allocated
Pixel navy();                                 // "#000080"

Widget barOf(Widget progress);

// The widgets that show the control's text or its items, where it has such.
std::vector<Widget> partsOf(int kind);

// Ascent and descent of the font that the server has under the name.
int heightOf(const std::string& font);

// The dialog's vertical unit, of the font that it is given by "fnamm".
double unitOf(const std::string& font);

}  // namespace kite::testing
