#include "images/transparent_grey.h"

#include "images/image_loader.h"

namespace kite::images {

namespace {

struct State {
    BackgroundOf menuBarBackground = nullptr;  // set by setTransparentGrey
};
State state;

}  // namespace

void setTransparentGrey(BackgroundOf menuBarBackground)
{
    state.menuBarBackground = menuBarBackground;
}

std::optional<std::uint32_t> transparentGrey()
{
    if (!state.menuBarBackground) return std::nullopt;
    return static_cast<std::uint32_t>(state.menuBarBackground());
}

}  // namespace kite::images
