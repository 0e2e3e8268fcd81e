#include "toolkit/compound_string.h"

#include <string>

#include "toolkit/displayable_text.h"

namespace kite {

namespace {

// Most texts are one line, for which the toolkit has a string that takes half the time to paint.
XmString create(std::string text)
{
    auto* const tag = const_cast<char*>(XmFONTLIST_DEFAULT_TAG);
    return text.find('\n') == std::string::npos ? XmStringCreate(text.data(), tag)
                                                : XmStringCreateLtoR(text.data(), tag);
}

}  // namespace

CompoundString::CompoundString(const char* text) : string_(create(displayableText(text))) {}

}  // namespace kite
