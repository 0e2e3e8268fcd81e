#include "toolkit/text_copy.h"

#include <Xm/Text.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <new>

namespace kite {

// The toolkit's own copy would end the process when there is no memory for it; a host that has written
// too much can still be told.
TextCopy copyOfText(Widget text)
{
    const auto characters = static_cast<std::size_t>(XmTextGetLastPosition(text));
    const std::size_t size = characters * MB_CUR_MAX + 1;
    if (size > INT_MAX) return {};
    TextCopy copy{std::unique_ptr<char[]>{new (std::nothrow) char[size]}, 0};
    if (!copy.bytes) return {};
    copy.bytes[0] = '\0';
    XmTextGetSubstring(text, 0, static_cast<int>(characters), static_cast<int>(size),
                       copy.bytes.get());
    copy.length = std::strlen(copy.bytes.get());
    return copy;
}

}  // namespace kite
