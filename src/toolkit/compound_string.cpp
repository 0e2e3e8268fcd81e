#include "toolkit/compound_string.h"

#include "toolkit/displayable_text.h"

namespace kite {

CompoundString::CompoundString(const char* text)
    : string_(XmStringCreateLtoR(displayableText(text).data(),
                                 const_cast<char*>(XmFONTLIST_DEFAULT_TAG)))
{
}

}  // namespace kite
