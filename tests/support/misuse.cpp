#include "misuse.h"

#include "script.h"

namespace kite::testing {

std::vector<std::string> errorsDuring(const std::function<void()>& call)
{
    std::vector<std::string> messages;
    const ScriptScope answering = Script::instance().wheneverShown("v_errorbox", [&](Shown box) {
        messages.push_back(box.message());
        box.key(XK_Return);
    });
    call();
    return messages;
}

}  // namespace kite::testing
