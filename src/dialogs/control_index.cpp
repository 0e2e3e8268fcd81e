#include "dialogs/control_index.h"

#include <unordered_map>

#include "dialogs/control_type.h"
#include "toolkit/children.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

// Of one dialog: handlers work on the innermost, and hardly ever go back and forth between two. The host
// may make and destroy children as it likes, so what the index says is a guess to be looked at.
struct Index {
    WidgetRef dialog;
    std::unordered_map<int, std::size_t> positions;  // of the first child of each id
};
Index& state = neverDestroyed<Index>();

// Boxes have children without a tag, which must not pass for a control of id 0.
bool isControl(Widget child)
{
    return !isBeingDestroyed(child) && Tag::of(child).isControl();
}

bool hasId(Widget child, int id)
{
    return isControl(child) && Tag::of(child).id() == id;
}

void build(Widget dialog)
{
    state.dialog.reset(dialog);
    state.positions.clear();
    const auto children = childrenOf(dialog);
    state.positions.reserve(children.size());
    for (std::size_t position = 0; position < children.size(); ++position)
        if (isControl(children[position]))
            state.positions.emplace(Tag::of(children[position]).id(), position);
}

// Null also when the index is out of date.
Widget guess(Widget dialog, int id)
{
    const auto found = state.positions.find(id);
    const auto children = childrenOf(dialog);
    if (found == state.positions.end() || found->second >= children.size()) return nullptr;
    Widget const child = children[found->second];
    return hasId(child, id) ? child : nullptr;
}

}  // namespace

Widget findChildOfId(Widget dialog, int id)
{
    if (state.dialog.get() == dialog)
        if (Widget const child = guess(dialog, id)) return child;
    build(dialog);
    return guess(dialog, id);
}

}  // namespace kite
