#include "commands_support.h"

#include <array>

namespace kite::testing {

namespace {

constexpr int kHeaderSize = 54;

void put(std::string& file, std::size_t at, unsigned value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        file[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * i) & 0xFFU);
}

}  // namespace

void buildThenRun(const std::function<void()>& build, const std::function<void()>& body)
{
    App& app = App::instance();
    app.init();
    build();
    app.run(body);
}

Widget entry(const std::string& label)
{
    Widget const found = findByLabel(label, findWidget("v_menubar"));
    if (!found) ADD_FAILURE() << "There is no menu entry " << label;
    return found;
}

void openMenu(const std::string& title)
{
    if (Widget const button = entry(title)) Robot::instance().click(button);
}

void choose(const std::string& title, const std::string& item)
{
    openMenu(title);
    EXPECT_TRUE(isOpen(item));
    Robot::instance().click(entry(item));
}

bool isOpen(const std::string& itemLabel)
{
    return pumpUntil([&] { return isShown(entry(itemLabel)); });
}

bool isClosed(const std::string& itemLabel)
{
    return pumpUntil([&] { return !isShown(entry(itemLabel)); });
}

std::string bmp(int width, int height, const ColourOf& colourOf)
{
    const int rowSize = (width * 3 + 3) / 4 * 4;
    const int size = kHeaderSize + rowSize * height;
    std::string file(static_cast<std::size_t>(size), '\0');
    file.replace(0, 2, "BM");
    put(file, 2, static_cast<unsigned>(size), 4);
    put(file, 10, kHeaderSize, 4);
    put(file, 14, 40, 4);
    put(file, 18, static_cast<unsigned>(width), 4);
    put(file, 22, static_cast<unsigned>(height), 4);
    put(file, 26, 1, 2);
    put(file, 28, 24, 2);
    put(file, 34, static_cast<unsigned>(rowSize * height), 4);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const screen::Colour colour = colourOf(x, y);
            const auto at =
                static_cast<std::size_t>(kHeaderSize + (height - 1 - y) * rowSize + x * 3);
            put(file, at, static_cast<unsigned>(colour.red << 16 | colour.green << 8 | colour.blue),
                3);
        }
    return file;
}

screen::Colour quarters(int x, int y)
{
    static constexpr std::array<screen::Colour, 4> kColours{
        {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 0}}};
    return kColours[static_cast<std::size_t>((y < 10 ? 0 : 2) + (x < 10 ? 0 : 1))];
}

std::string addImage(const std::string& name, int width, int height, const ColourOf& colourOf)
{
    return HostDouble::instance().addFile("tbbb/" + name + ".bmp", bmp(width, height, colourOf));
}

std::vector<Widget> toolbarButtons()
{
    Widget const toolbar = findWidget("v_toolbar");
    return toolbar ? childrenOf(toolbar) : std::vector<Widget>{};
}

}  // namespace kite::testing
