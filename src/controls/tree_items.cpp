#include "controls/tree_items.h"

#include <Xm/Container.h>
#include <Xm/IconG.h>

#include <vector>

#include "controls/tree_marks.h"
#include "toolkit/outline.h"

namespace kite {

namespace {

std::vector<Widget> itemsBelow(Widget container, Widget parent)
{
    std::vector<Widget> items;
    for (Widget item = outline::firstChild(container, parent); item;
         item = outline::nextSibling(item))
        items.push_back(item);
    return items;
}

// The deepest first.
void addBranch(Widget container, Widget item, std::vector<Widget>& branch)
{
    for (Widget const child : itemsBelow(container, item)) addBranch(container, child, branch);
    branch.push_back(item);
}

// The container keeps its size when its last item goes, and could be scrolled though it is empty.
void shrinkIfEmpty(Widget container)
{
    if (!outline::firstChild(container, nullptr))
        XtVaSetValues(container, XmNwidth, 1, XmNheight, 1, nullptr);
}

// All of them are unmanaged at once: for each change the container lays out the whole tree.
void destroyAll(Widget container, std::vector<Widget>& items)
{
    XtUnmanageChildren(items.data(), static_cast<Cardinal>(items.size()));
    for (Widget const item : items) XtDestroyWidget(item);
    renewMarksLater(container);
    shrinkIfEmpty(container);
}

// Now, and not when Xt comes to it: until then they would be nowhere.
void moveChildrenUp(Widget item)
{
    for (Widget const child : itemsBelow(XtParent(item), item))
        XtVaSetValues(child, XmNentryParent, nullptr, XmNpositionIndex, XmLAST_POSITION, nullptr);
}

}  // namespace

Widget guitreefind(Widget container, Widget parent, int key)
{
    for (Widget item = outline::firstChild(container, parent); item;
         item = outline::nextSibling(item)) {
        if (outline::keyOf(item) == key) return item;
        if (Widget const found = guitreefind(container, item, key)) return found;
    }
    return nullptr;
}

Widget findItemOfIndex(Widget container, int index)
{
    return guitreefind(container, nullptr, static_cast<int>(static_cast<unsigned>(index) + 1U));
}

void DestroyBranch(Widget container, Widget item)
{
    std::vector<Widget> branch;
    addBranch(container, item, branch);
    destroyAll(container, branch);
}

void destroyAlone(Widget item)
{
    moveChildrenUp(item);
    std::vector<Widget> alone{item};
    destroyAll(XtParent(item), alone);
}

void destroyTopLevel(Widget container)
{
    std::vector<Widget> items = itemsBelow(container, nullptr);
    for (Widget const item : items) moveChildrenUp(item);
    destroyAll(container, items);
}

void selectTreeItem(Widget container, int index)
{
    Widget item = findItemOfIndex(container, index);
    if (!item) return;
    XtVaSetValues(container, XmNselectedObjects, &item, XmNselectedObjectCount, 1, nullptr);
    XtVaSetValues(item, XmNvisualEmphasis, XmSELECTED, nullptr);
}

}  // namespace kite
