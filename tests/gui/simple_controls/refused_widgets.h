// refused_widgets.h: the toolkit makes no widget of a name, while an object of this lives. For programs that
// link it: it takes the place of the toolkit's XtVaCreateManagedWidget.

#pragma once

#include <string>

namespace kite::testing {

class RefusedWidgets {
public:
    explicit RefusedWidgets(const std::string& name);
    ~RefusedWidgets();
    RefusedWidgets(const RefusedWidgets&) = delete;
    RefusedWidgets& operator=(const RefusedWidgets&) = delete;
};

}  // namespace kite::testing
