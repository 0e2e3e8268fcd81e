#include "frame/file_drop.h"

#include <Xm/DropSMgr.h>
#include <Xm/Transfer.h>
#include <kitegui.h>

#include <cstring>
#include <string_view>
#include <vector>

#include "boxes/misuse.h"
#include "frame/dispatcher.h"
#include "toolkit/host_buffer.h"

namespace kite {

namespace {

constexpr int kSize = 1024;  // with the terminating null; a longer name is cut

// The name last dropped: set by a drop, emptied when the host has fetched it.
char droppedName[kSize] = "";

Atom fileNameTarget(Widget widget)
{
    return XInternAtom(XtDisplay(widget), "FILE_NAME", False);
}

void nameArrived(Widget, XtPointer, XtPointer callData)
{
    const auto* selection = static_cast<XmSelectionCallbackStruct*>(callData);
    if (!selection->value) return;
    if (selection->format == 8) {
        const std::string_view bytes{static_cast<const char*>(selection->value), selection->length};
        copyToBuffer(droppedName, kSize, bytes.substr(0, bytes.find('\0')));
    }
    XtFree(static_cast<char*>(selection->value));
    if (selection->format == 8) raise(GUI_EVENT_DROP);
}

void dropped(Widget text, XtPointer, XtPointer callData)
{
    const auto* destination = static_cast<XmDestinationCallbackStruct*>(callData);
    // The text's own selection is no file name, and a request that it refuses would end the transfer.
    if (destination->flags & XmCONVERTING_SAME) return;
    XmTransferValue(destination->transfer_id, fileNameTarget(text), nameArrived, nullptr,
                    XtLastTimestampProcessed(XtDisplay(text)));
}

// A text is a drop site for text; sources that offer nothing but a file name need it named too.
void addDropTarget(Widget text)
{
    Atom* targets = nullptr;
    Cardinal count = 0;
    Arg query[2];
    XtSetArg(query[0], XmNimportTargets, &targets);
    XtSetArg(query[1], XmNnumImportTargets, &count);
    XmDropSiteRetrieve(text, query, 2);

    std::vector<Atom> extended(targets, targets + count);
    extended.push_back(fileNameTarget(text));
    Arg change[2];
    XtSetArg(change[0], XmNimportTargets, extended.data());
    XtSetArg(change[1], XmNnumImportTargets, extended.size());
    XmDropSiteUpdate(text, change, 2);
}

}  // namespace

void acceptFileDrops(Widget text)
{
    addDropTarget(text);
    XtAddCallback(text, XmNdestinationCallback, dropped, nullptr);
}

}  // namespace kite

int guiGetDropName(char* buffer, int size)
{
    if (!kite::isUsableBuffer(buffer, size))
        return kite::reportMisuse("GetDropName: invalid buffer");
    const std::string_view name{kite::droppedName};
    buffer[0] = '\0';
    // A name that does not fit is kept for a larger buffer.
    if (name.empty() || name.length() >= static_cast<std::size_t>(size)) return GUI_FAILED;
    const int length = kite::copyToBuffer(buffer, size, name);
    kite::droppedName[0] = '\0';
    return length;
}
