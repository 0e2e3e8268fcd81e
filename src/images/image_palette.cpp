#include "images/image_palette.h"

#include <algorithm>
#include <iterator>

#include "frame/session.h"
#include "images/display_colours.h"

namespace kite::images {

namespace {

struct State {
    Display* display = nullptr;  // while a PaletteDisplay exists
};
State state;

Display* currentDisplay()
{
    return state.display ? state.display : session::display();
}

}  // namespace

ImagePalette& loadingPalette()
{
    static ImagePalette palette;
    return palette;
}

PaletteDisplay::PaletteDisplay(Display* display)
{
    state.display = display;
}

PaletteDisplay::~PaletteDisplay()
{
    state.display = nullptr;
}

}  // namespace kite::images

namespace {

enum EntryState : unsigned char { NotAllocated = 0, Allocated = 1, Failed = 2 };

bool isIndex(int index)
{
    return index >= 0 && index < 256;
}

}  // namespace

ImagePalette::ImagePalette()
{
    reset(0);
}

void ImagePalette::reset(unsigned long newColormap)
{
    colormap = newColormap;
    std::fill(std::begin(entries), std::end(entries), Entry{});
}

void ImagePalette::set(int index, int red, int green, int blue)
{
    if (!isIndex(index)) return;
    Entry& entry = entries[index];
    entry.red = static_cast<unsigned char>(red);
    entry.green = static_cast<unsigned char>(green);
    entry.blue = static_cast<unsigned char>(blue);
    entry.state = NotAllocated;
}

int ImagePalette::isGood(int index)
{
    if (!isIndex(index)) return 0;
    Entry& entry = entries[index];
    if (entry.state == NotAllocated) {
        const auto colour = kite::images::allocateColour(kite::images::currentDisplay(), colormap,
                                                         {entry.red, entry.green, entry.blue});
        entry.state = colour ? Allocated : Failed;
        if (colour) entry.pixel = colour->pixel;
    }
    return entry.state == Allocated;
}

unsigned long ImagePalette::get(int index) const
{
    return isIndex(index) ? entries[index].pixel : 0;
}
