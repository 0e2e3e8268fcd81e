#include <gtest/gtest.h>

#include "text_attributes_support.h"

#include <Xm/IconG.h>

#include <ostream>

#include "connection.h"

namespace kite::testing {

namespace {

Screen* defaultScreen()
{
    return DefaultScreenOfDisplay(toolkit::display());
}

constexpr int kOdd[] = {0x1234, 0x5678, 0x9abc};

}  // namespace

void withAllKinds(const std::function<void()>& body)
{
    runDialog({.build = buildSimpleKinds, .fill = [&] {
                   makeOtherKinds();
                   body();
               }});
}

std::ostream& operator<<(std::ostream& out, const Look& look)
{
    return out << std::hex << look.foreground << " on " << look.background << std::dec;
}

Look lookOf(Widget widget)
{
    return {resource<Pixel>(widget, XmNforeground), resource<Pixel>(widget, XmNbackground)};
}

Look lookOfKind(int kind)
{
    if (kind != Progress) return lookOf(innerOf(kind));
    Widget const bar = barOf(innerOf(kind));
    EXPECT_EQ(resource<Pixel>(bar, XmNbackground), resource<Pixel>(innerOf(kind), XmNbackground));
    return {resource<Pixel>(bar, XmNtroughColor), resource<Pixel>(bar, XmNbackground)};
}

Look disguised()
{
    return {pixelOf(kOdd[0], kOdd[1], kOdd[2]), pixelOf(kOdd[2], kOdd[1], kOdd[0])};
}

void disguise(int kind)
{
    const auto paint = [](Widget widget, const char* foreground) {
        XtVaSetValues(widget, foreground, disguised().foreground, XmNbackground,
                      disguised().background, nullptr);
    };
    paint(innerOf(kind), XmNforeground);
    if (kind == Progress) paint(barOf(innerOf(kind)), XmNtroughColor);
    for (Widget const part : partsOf(kind)) paint(part, XmNforeground);
}

Pixel black()
{
    return BlackPixelOfScreen(defaultScreen());
}

Pixel white()
{
    return WhitePixelOfScreen(defaultScreen());
}

Pixel pixelOf(int red, int green, int blue)
{
    XColor colour{};
    colour.red = static_cast<unsigned short>(red);
    colour.green = static_cast<unsigned short>(green);
    colour.blue = static_cast<unsigned short>(blue);
    EXPECT_TRUE(XAllocColor(toolkit::display(), DefaultColormapOfScreen(defaultScreen()), &colour));
    return colour.pixel;
}

Pixel red()
{
    return pixelOf(255 * 255, 0, 0);
}

Pixel navy()
{
    return pixelOf(0, 0, 0x80 * 255);
}

Widget barOf(Widget progress)
{
    return XtNameToWidget(progress, "Scrollbar");
}

std::vector<Widget> partsOf(int kind)
{
    Widget const control = innerOf(kind);
    switch (kind) {
    case ChoiceBox:
    case Combo:
        return {resource<Widget>(control, XmNtextField), resource<Widget>(control, XmNlist)};
    case Spin: return {resource<Widget>(control, XmNtextField)};
    case Tree: return findWidgets("item", control);
    default: return {};
    }
}

int heightOf(const std::string& font)
{
    XFontStruct* const loaded = XLoadQueryFont(connection(), font.c_str());
    if (!loaded) return ADD_FAILURE() << "The server has no " << font, 0;
    const int height = loaded->max_bounds.ascent + loaded->max_bounds.descent;
    XFreeFont(connection(), loaded);
    return height;
}

double unitOf(const std::string& font)
{
    return (heightOf(font) + 1) / 8.0;
}

}  // namespace kite::testing
