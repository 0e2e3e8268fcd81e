#include "server_resources.h"

#include <X11/extensions/XRes.h>

#include "connection.h"

namespace kite::testing {

namespace {

std::string nameOf(Atom atom)
{
    char* const name = XGetAtomName(connection(), atom);
    std::string copy = name ? name : "";
    XFree(name);
    return copy;
}

}  // namespace

std::map<std::string, unsigned> serverResources(Display* display)
{
    XSync(display, False);
    std::map<std::string, unsigned> resources;
    const XID anyOfIts = XAllocID(display);
    int count = 0;
    XResType* types = nullptr;
    if (!XResQueryClientResources(connection(), anyOfIts, &count, &types)) return resources;
    for (int i = 0; i < count; ++i) resources[nameOf(types[i].resource_type)] += types[i].count;
    XFree(types);
    return resources;
}

}  // namespace kite::testing
