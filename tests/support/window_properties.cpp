#include "window_properties.h"

#include <X11/Xatom.h>

#include <memory>

#include "connection.h"

namespace kite::testing::wm {

namespace {

constexpr long kMostItems = 1L << 20;

struct Property {
    int format = 0;  // 0: there is none
    unsigned long count = 0;
    std::unique_ptr<unsigned char, int (*)(void*)> data{nullptr, XFree};
};

Property read(Window window, const std::string& name)
{
    Property property;
    Atom type = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    const int status =
        XGetWindowProperty(connection(), window, atom(name), 0, kMostItems, False, AnyPropertyType,
                           &type, &property.format, &property.count, &left, &data);
    if (status != Success) return {};
    property.data.reset(data);
    return property;
}

}  // namespace

std::vector<unsigned long> itemsOf(Window window, const std::string& name)
{
    const Property property = read(window, name);
    if (property.format != 32) return {};
    const auto* items = reinterpret_cast<const unsigned long*>(property.data.get());
    return {items, items + property.count};
}

std::optional<std::string> bytesOf(Window window, const std::string& name)
{
    const Property property = read(window, name);
    if (property.format != 8) return std::nullopt;
    return std::string{reinterpret_cast<const char*>(property.data.get()), property.count};
}

std::string nameOf(Client client)
{
    return bytesOf(client.window, "WM_NAME").value_or("");
}

std::string netNameOf(Client client)
{
    return bytesOf(client.window, "_NET_WM_NAME").value_or("");
}

std::string iconNameOf(Client client)
{
    return bytesOf(client.window, "WM_ICON_NAME").value_or("");
}

XSizeHints normalHintsOf(Client client)
{
    XSizeHints hints{};
    long supplied = 0;
    XGetWMNormalHints(connection(), client.window, &hints, &supplied);
    return hints;
}

std::vector<std::string> protocolsOf(Client client)
{
    std::vector<std::string> names;
    for (const unsigned long protocol : itemsOf(client.window, "WM_PROTOCOLS")) {
        char* const name = XGetAtomName(connection(), protocol);
        if (!name) continue;
        names.emplace_back(name);
        XFree(name);
    }
    return names;
}

std::optional<Window> transientFor(Client client)
{
    const std::vector<unsigned long> items = itemsOf(client.window, "WM_TRANSIENT_FOR");
    return items.empty() ? std::nullopt : std::optional<Window>{items.front()};
}

}  // namespace kite::testing::wm
