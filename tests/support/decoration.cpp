#include "decoration.h"

#include <algorithm>
#include <vector>

#include "connection.h"

namespace kite::testing::wm {

namespace {

constexpr int kLowestTitle = 10;  // pixels: less is a border

// The strip above the client, within the side borders.
std::optional<Rect> titleRect(Client client)
{
    const Rect frame = frameRect(client);
    const Rect inside = clientRect(client);
    const int border = inside.x - frame.x;
    const Rect title{inside.x, frame.y + border, inside.width, inside.y - frame.y - border};
    return title.height < kLowestTitle ? std::nullopt : std::optional{title};
}

// openbox: each button is a small square window in the window of the title.
std::vector<Rect> openboxButtons(Client client)
{
    const std::optional<Rect> title = titleRect(client);
    std::vector<Rect> buttons;
    if (!title) return buttons;
    for (const Window part : childrenOf(frameOf(client))) {
        if (!title->contains(rectOnScreen(part).centre())) continue;
        for (const Window button : childrenOf(part)) {
            const Rect rect = rectOnScreen(button);
            if (isViewable(button) && rect.width == rect.height && rect.width >= kLowestTitle)
                buttons.push_back(rect);
        }
    }
    std::ranges::sort(buttons, {}, &Rect::x);
    return buttons;
}

// mwm draws squares as high as the title: the menu's at the left, minimize and maximize at the right.
std::optional<Point> mwmButton(Client client, double squaresFromLeft)
{
    const std::optional<Rect> title = titleRect(client);
    if (!title) return std::nullopt;
    const int offset = static_cast<int>(squaresFromLeft * title->height);
    return Point{(offset < 0 ? title->right() : title->x) + offset, title->centre().y};
}

}  // namespace

std::optional<Point> titleBar(Client client)
{
    const std::optional<Rect> title = titleRect(client);
    return title ? std::optional{title->centre()} : std::nullopt;
}

std::optional<Point> menuButton(Client client)
{
    if (kind() == Kind::Mwm) return mwmButton(client, 0.5);
    const std::vector<Rect> buttons = openboxButtons(client);
    return buttons.empty() ? std::nullopt : std::optional{buttons.front().centre()};
}

std::optional<Point> closeButton(Client client)
{
    if (kind() != Kind::Openbox) return std::nullopt;
    const std::vector<Rect> buttons = openboxButtons(client);
    return buttons.empty() ? std::nullopt : std::optional{buttons.back().centre()};
}

std::optional<Point> iconifyButton(Client client)
{
    if (kind() == Kind::Mwm) return mwmButton(client, -1.5);
    const std::vector<Rect> buttons = openboxButtons(client);
    constexpr std::size_t kMenuIconifyMaximizeClose = 4;
    if (buttons.size() < kMenuIconifyMaximizeClose) return std::nullopt;
    return buttons[buttons.size() - 3].centre();
}

}  // namespace kite::testing::wm
