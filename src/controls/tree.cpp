// tree.cpp: the items of trees, by keys. Key 0 is the root, which every tree has.

#include <Xm/Container.h>
#include <Xm/IconG.h>
#include <kitegui.h>

#include "controls/tree_items.h"
#include "dialogs/control_lookup.h"
#include "frame/dispatcher.h"
#include "toolkit/compound_string.h"
#include "toolkit/outline.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

constexpr TypeSet kTrees{ControlType::Tree};
constexpr int kRoot = 0;

// Behind those that stand there, with the font and the colours that the tree has by now. A parent that the tree does not have is the root.
void addItem(Widget container, int parentKey, int key, const char* text)
{
    Widget const parent = parentKey == kRoot ? nullptr : guitreefind(container, nullptr, parentKey);
    const CompoundString label{text};
    XtVaCreateManagedWidget("item", xmIconGadgetClass, container, XmNlabelString, label.get(),
                            XmNfontList, resource<XmFontList>(container, XmNfontList),
                            XmNforeground, resource<Pixel>(container, XmNforeground), XmNbackground,
                            resource<Pixel>(container, XmNbackground), XmNentryParent, parent,
                            XmNuserData,
                            reinterpret_cast<XtPointer>(static_cast<std::intptr_t>(key)),
                            XmNshadowThickness, 0, XmNhighlightThickness, 0, nullptr);
}

// The first item directly below the parent; null also when there is no such parent.
Widget firstBelow(Widget container, int parentKey)
{
    if (parentKey == kRoot) return outline::firstChild(container, nullptr);
    Widget const parent = guitreefind(container, nullptr, parentKey);
    return parent ? outline::firstChild(container, parent) : nullptr;
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiAddTree(int id, int parentKey, int key, const char* text)
{
    const Control control = findControl("InsertTreeItem", id);
    if (!control) return GUI_FAILED;
    if (!kTrees.has(control.type)) return refuse("InsertTreeItem", id), 0;
    const EventsSuppressed quiet;
    addItem(control.widget, parentKey, key, text);
    return 0;
}

int guiNumTree(int id, int parentKey)
{
    const Control control = findControl("NumTreeItem", id, kTrees);
    if (!control) return GUI_FAILED;
    int count = 0;
    for (Widget item = firstBelow(control.widget, parentKey); item;
         item = outline::nextSibling(item))
        ++count;
    return count;
}

// Under the name of its partner.
int guiNthTree(int id, int parentKey, int n)
{
    const Control control = findControl("NumTreeItem", id, kTrees);
    if (!control) return GUI_FAILED;
    if (n < 1) return 0;
    Widget item = firstBelow(control.widget, parentKey);
    for (int passed = 1; item && passed < n; ++passed) item = outline::nextSibling(item);
    return item ? outline::keyOf(item) : 0;
}

// Events pass: that what was selected is gone is for the host to hear.
void guiDelTree(int id, int key)
{
    const Control control = findControl("DelTreeItem", id, kTrees);
    if (!control || key == kRoot) return;
    if (Widget const item = guitreefind(control.widget, nullptr, key))
        DestroyBranch(control.widget, item);
}
