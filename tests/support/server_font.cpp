#include "server_font.h"

#include <X11/Xlib.h>

#include <vector>

#include "connection.h"
#include "host_double.h"

namespace kite::testing {

void giveServerFont(const std::string& name, const std::string& font)
{
    HostDouble& host = HostDouble::instance();
    host.addFile("fonts/fonts.dir", "0\n");
    host.addFile("fonts/fonts.alias", name + ' ' + font + '\n');
    int count = 0;
    char** const old = XGetFontPath(connection(), &count);
    std::vector<char*> path(old, old + count);
    std::string own = host.appDir().string() + "/fonts";
    path.push_back(own.data());
    XSetFontPath(connection(), path.data(), static_cast<int>(path.size()));
    XSync(connection(), False);
    XFreeFontPath(old);
}

}  // namespace kite::testing
