#include "library_dialog.h"

#include <kitegui.h>

#include "dialog_layout.h"

namespace bench {

void addControl(int number)
{
    const Place place = placeOf(number);
    const int id = number + 1;
    const std::string text = textOf(number);
    switch (place.kind) {
    case Kind::Label: guiLabel(id, place.top, place.x, kControlWidth, text.c_str()); break;
    case Kind::Edit: guiEdit(id, place.top, place.x, kControlWidth, 0, 0); break;
    case Kind::Button: guiButton(id, place.top, place.x, kControlWidth, text.c_str(), 0); break;
    case Kind::Check: guiCheck(id, place.top, place.x, kControlWidth, text.c_str()); break;
    case Kind::Radio: guiRadio(id, place.top, place.x, kControlWidth, text.c_str()); break;
    }
}

}  // namespace bench
