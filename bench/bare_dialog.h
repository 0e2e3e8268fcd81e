// bare_dialog.h: a dialog made by hand, with the resources, callbacks and event handlers that the library
// gives its own.

#pragma once

#include <Xm/Xm.h>

#include <vector>

#include "dialog_layout.h"

namespace bench {

class BareDialog {
public:
    BareDialog(Widget parent, XmFontList font);

    Widget add(const Place& place, const char* text);
    void show();
    void destroy();  // and processes events until it has gone

    Widget board() const { return board_; }

private:
    Widget create(const Place& place, XmString label);
    Widget createToggle(const Place& place, XmString label, int indicator);

    XmFontList font_;
    Widget shell_;
    Widget board_;
    std::vector<Widget> controls_;
};

}  // namespace bench
