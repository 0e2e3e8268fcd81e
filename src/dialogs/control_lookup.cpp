#include "dialogs/control_lookup.h"

#include <Xm/ScrolledW.h>

#include <cstring>

#include "boxes/misuse.h"
#include "dialogs/control_index.h"
#include "frame/top_window.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

constexpr TypeSet kScrolled{ControlType::List, ControlType::Text, ControlType::Tree};

// Hosts ask with it whether there is such a control.
constexpr char kQuietOperation[] = "IdStatus";

Control controlOf(Widget outer)
{
    const ControlType type = Tag::of(outer).type();
    if (!kScrolled.has(type)) return {outer, outer, type};
    return {resource<Widget>(outer, XmNworkWindow), outer, type};
}

}  // namespace

Control findControl(const char* operation, int id)
{
    const auto none = [](int) { return Control{}; };
    Widget const top = topWindow();
    if (!top) return {};
    if (top == mainWindow()) return none(reportMisuse("%s: no dialog", operation));
    if (id < 0) return none(reportMisuse("%s: wrong id %d", operation, id));
    if (Widget const outer = findChildOfId(top, id)) return controlOf(outer);
    if (std::strcmp(operation, kQuietOperation) != 0)
        reportMisuse("%s: no control with id %d in the dialog", operation, id);
    return {};
}

Control findControl(const char* operation, int id, TypeSet accepted)
{
    const Control control = findControl(operation, id);
    if (!control || accepted.has(control.type)) return control;
    refuse(operation, id);
    return {};
}

void refuse(const char* operation, int id)
{
    reportMisuse("%s: unsuitable control type (id = %d)", operation, id);
}

}  // namespace kite
