#include "toolkit/compound_string.h"

namespace kite {

CompoundString::CompoundString(const char* text)
    : string_(XmStringCreateLtoR(const_cast<char*>(text ? text : ""),
                                 const_cast<char*>(XmFONTLIST_DEFAULT_TAG)))
{
}

}  // namespace kite
