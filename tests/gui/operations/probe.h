// probe.h: whether events reach the handler at a moment, found out with a button of the dialog.

#pragma once

#include "dialog_plan.h"

namespace kite::testing {

inline constexpr int kProbe = 100;  // its id

void buildProbe();  // between guiDialog and guiRunDialog

// Presses the button as the toolkit does.
bool doEventsPass();

// Counts, while it lives, the events that pass while the toolkit tells of a change of the widget.
class [[nodiscard]] ProbeOnChange {
public:
    ProbeOnChange(Widget widget, const char* callback);
    ~ProbeOnChange();
    ProbeOnChange(const ProbeOnChange&) = delete;
    ProbeOnChange& operator=(const ProbeOnChange&) = delete;

    int changes() const { return changes_; }
    int passed() const { return passed_; }

private:
    static void changed(Widget, XtPointer self, XtPointer);

    Widget widget_;
    const char* callback_;
    int changes_ = 0;
    int passed_ = 0;
};

}  // namespace kite::testing
