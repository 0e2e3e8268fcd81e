#include "controls/hidden_text.h"

#include <Xm/Xm.h>

#include <unordered_map>

#include "toolkit/never_destroyed.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

struct Shadow {
    Pixel top;
    Pixel bottom;
};

// Of hidden edits that are insensitive: what they have again later.
using Shadows = std::unordered_map<Widget, Shadow>;
Shadows& shadows = neverDestroyed<Shadows>();

void forget(Widget edit, XtPointer, XtPointer)
{
    shadows.erase(edit);
}

void setShadow(Widget edit, const Shadow& shadow)
{
    XtVaSetValues(edit, XmNtopShadowColor, shadow.top, XmNbottomShadowColor, shadow.bottom,
                  nullptr);
}

void takeShadow(Widget edit, Pixel background)
{
    const Shadow shadow{resource<Pixel>(edit, XmNtopShadowColor),
                        resource<Pixel>(edit, XmNbottomShadowColor)};
    if (!shadows.emplace(edit, shadow).second) return;
    XtAddCallback(edit, XmNdestroyCallback, forget, nullptr);
    setShadow(edit, {background, background});
}

void giveShadowBack(Widget edit)
{
    const auto shadow = shadows.extract(edit);
    if (!shadow) return;
    XtRemoveCallback(edit, XmNdestroyCallback, forget, nullptr);
    setShadow(edit, shadow.mapped());
}

}  // namespace

void keepHidden(Widget edit, bool isSensitive)
{
    const auto background = resource<Pixel>(edit, XmNbackground);
    if (isSensitive)
        giveShadowBack(edit);
    else if (resource<Pixel>(edit, XmNforeground) == background)
        takeShadow(edit, background);
}

}  // namespace kite
