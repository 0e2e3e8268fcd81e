#include "toolkit/colours.h"

namespace kite {

Pixel blackPixel(Widget widget)
{
    return BlackPixelOfScreen(XtScreenOfObject(widget));
}

Pixel whitePixel(Widget widget)
{
    return WhitePixelOfScreen(XtScreenOfObject(widget));
}

Pixel allocateColour(Widget widget, Colour colour)
{
    Screen* const screen = XtScreenOfObject(widget);
    XColor wanted{};
    wanted.red = colour.red;
    wanted.green = colour.green;
    wanted.blue = colour.blue;
    if (XAllocColor(DisplayOfScreen(screen), DefaultColormapOfScreen(screen), &wanted))
        return wanted.pixel;
    return WhitePixelOfScreen(screen);
}

}  // namespace kite
