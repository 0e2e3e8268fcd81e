#include "other_controls_support.h"

#include <Xm/Xm.h>

#include <cstdint>

namespace kite::testing {

const std::vector<KindOfControl>& allKinds()
{
    static const std::vector<KindOfControl> kinds{
        {kText, "Text", "v_dlgscroll", false, [](int id) { guiText(id, 0, 3, 0, 60, 0); }},
        {kTree, "Tree", "v_dlgscroll", false, [](int id) { guiTree(id, 4, 3, 0, 60); }},
        {kSpin, "Spin", "v_dlgspinbox", true, [](int id) { guiSpin(id, 8, 0, 60); }},
        {kSlider, "Slider", "v_dlgscale", true, [](int id) { guiSlider(id, 10, 2, 0, 60); }},
        {kProgress, "Progress", "v_dlgprogress", true,
         [](int id) { guiProgress(id, 13, 2, 0, 60); }},
    };
    return kinds;
}

void makeAllKinds()
{
    for (const KindOfControl& kind : allKinds()) kind.make(kind.kind);
}

void runFilled(const std::function<void()>& build, const std::function<void()>& fill,
               const std::function<void(Shown)>& use)
{
    Recorder::instance().onEvent(GUI_EVENT_INIT, fill);
    runDialog(build, use);
}

Widget innerOf(int id)
{
    Widget const control = controlOf(id);
    if (!control) return nullptr;
    const std::string name = XtName(control);
    if (name == "v_dlgscroll") return resource<Widget>(control, XmNworkWindow);
    if (name == "v_dlgspinbox") return resource<Widget>(control, XmNtextField);
    return XtNameToWidget(control, "Scrollbar");
}

Widget verticalBarOf(int id)
{
    Widget const control = controlOf(id);
    return control ? resource<Widget>(control, XmNverticalScrollBar) : nullptr;
}

Widget viewOf(int id)
{
    Widget const control = controlOf(id);
    Widget const clip = control ? resource<Widget>(control, XmNclipWindow) : nullptr;
    return clip ? clip : innerOf(id);
}

Widget itemOf(int id, int key)
{
    for (Widget const item : findWidgets("item", innerOf(id)))
        if (reinterpret_cast<std::intptr_t>(resource<XtPointer>(item, XmNuserData)) == key)
            return item;
    ADD_FAILURE() << "There is no item with key " << key;
    return nullptr;
}

Point middleOfItem(int id, int key)
{
    Widget const item = itemOf(id, key);
    return item ? placeOf(item).centre() : Point{};
}

bool hasKeyboard(int id)
{
    Widget const focus = XmGetFocusWidget(newestBoard());
    Widget const inner = innerOf(id);
    return focus && (focus == inner || focus == controlOf(id) || XtParent(focus) == inner);
}

bool waitForKeyboard(int id)
{
    return pumpUntil([&] { return hasKeyboard(id); });
}

void fillLines(int id, int count)
{
    for (int i = 0; i < count; ++i) guiAppendLine(id, ("Line " + std::to_string(i)).c_str());
}

void fillItems(int id, int count)
{
    for (int key = 1; key <= count; ++key)
        guiAddTree(id, 0, key, ("Item " + std::to_string(key)).c_str());
}

std::string fieldTextOf(int spin)
{
    return textOf(innerOf(spin));
}

int valueOf(int scale)
{
    return resource<int>(controlOf(scale), XmNvalue);
}

Event cursorAt(int id, int line, int column)
{
    return toDialog(GUI_EVENT_CURSOR, id, line, column);
}

Event selected(int id, int index, int isDouble)
{
    return toDialog(GUI_EVENT_SELECT, id, index, isDouble);
}

Event value(int id, int number)
{
    return toDialog(GUI_EVENT_VALUE, id, number);
}

Event number(int id, int number)
{
    return toDialog(GUI_EVENT_TEXT_CHANGED, id, number);
}

Event scrolled(int id, int top)
{
    return toDialog(GUI_EVENT_SCROLLED, id, top);
}

Event leftBehind(int id)
{
    return toDialog(GUI_EVENT_LEFT, id, 1);
}

}  // namespace kite::testing
