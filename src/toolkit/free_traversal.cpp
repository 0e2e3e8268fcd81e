#include "toolkit/free_traversal.h"

#include <Xm/DisplayP.h>

namespace kite {

namespace {

Boolean& isMoving(Widget toolkitDisplay)
{
    XtPointer const info = reinterpret_cast<XmDisplay>(toolkitDisplay)->display.displayInfo;
    return static_cast<XmDisplayInfo*>(info)->traversal_in_progress;
}

}  // namespace

FreeTraversal::FreeTraversal(Widget widget) : toolkitDisplay_(XmGetXmDisplay(XtDisplay(widget)))
{
    wasMoving_ = isMoving(toolkitDisplay_.get());
    isMoving(toolkitDisplay_.get()) = False;
}

FreeTraversal::~FreeTraversal()
{
    if (Widget const display = toolkitDisplay_.get()) isMoving(display) = wasMoving_;
}

}  // namespace kite
