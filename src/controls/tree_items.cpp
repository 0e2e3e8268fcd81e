#include "controls/tree_items.h"

#include <Xm/Container.h>
#include <Xm/IconG.h>

#include <vector>

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

void destroy(Widget item)
{
    XtUnmanageChild(item);
    XtDestroyWidget(item);
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
    for (Widget const child : itemsBelow(container, item)) DestroyBranch(container, child);
    destroy(item);
}

// Now, and not when Xt comes to it: until then they would be nowhere.
void destroyAlone(Widget item)
{
    for (Widget const child : itemsBelow(XtParent(item), item))
        XtVaSetValues(child, XmNentryParent, nullptr, nullptr);
    destroy(item);
}

void destroyTopLevel(Widget container)
{
    for (Widget const item : itemsBelow(container, nullptr)) destroyAlone(item);
}

void selectTreeItem(Widget container, int index)
{
    Widget item = findItemOfIndex(container, index);
    if (!item) return;
    XtVaSetValues(container, XmNselectedObjects, &item, XmNselectedObjectCount, 1, nullptr);
    XtVaSetValues(item, XmNvisualEmphasis, XmSELECTED, nullptr);
}

}  // namespace kite
