#include "toolkit/clipboard.h"

#include <Xm/CutPaste.h>

#include <new>

#include "toolkit/compound_string.h"
#include "toolkit/server_time.h"

namespace kite {

namespace {

constexpr char kLabel[] = "guiCopyText";  // of everything that we put there

bool isInUse = false;

// The toolkit takes names and texts as mutable and leaves them as they are.
char* mutableText(const char* text)
{
    return const_cast<char*>(text);
}

template <typename Call>
int untilUnlocked(Call call)
{
    int status = ClipboardLocked;
    while (status == ClipboardLocked) status = call();
    return status;
}

// To the toolkit we have what we had until it has seen the event of the loss, and then asks us instead of the new
// owner.
void hearOfLosses(Display* display)
{
    XSync(display, False);
    XEvent event;
    while (XCheckTypedEvent(display, SelectionClear, &event)) XtDispatchEvent(&event);
}

}  // namespace

Clipboard::Clipboard(Widget widget)
{
    if (isInUse || !widget || !XtIsWidget(widget) || !XtIsRealized(widget)) return;
    isInUse = true;
    display_ = XtDisplay(widget);
    window_ = XtWindow(widget);
    untilUnlocked([&] { return XmClipboardLock(display_, window_); });
}

// All levels of the lock: where another client has no text in a format, asking for its length leaves one locked.
// Others shall know at once, however long the handler goes on.
Clipboard::~Clipboard()
{
    if (!display_) return;
    XmClipboardUnlock(display_, window_, True);
    XFlush(display_);
    isInUse = false;
}

void Clipboard::put(std::string_view text)
{
    const CompoundString label{kLabel};
    long item = 0;
    const Time now = serverTime(display_);
    const int status = untilUnlocked([&] {
        return XmClipboardStartCopy(display_, window_, label.get(), now, nullptr, nullptr, &item);
    });
    if (status != ClipboardSuccess) return;
    untilUnlocked([&] {
        return XmClipboardCopy(display_, window_, item, mutableText(kPlainText),
                               mutableText(text.data()), text.size(), 0, nullptr);
    });
    untilUnlocked([&] { return XmClipboardEndCopy(display_, window_, item); });
}

TextCopy Clipboard::textIn(const char* format)
{
    unsigned long length = 0;
    const int asked = untilUnlocked(
        [&] { return XmClipboardInquireLength(display_, window_, mutableText(format), &length); });
    if (asked != ClipboardSuccess || length == 0) return {};
    TextCopy copy{std::unique_ptr<char[]>{new (std::nothrow) char[length + 1]}, 0};
    if (!copy.bytes) return {};
    unsigned long retrieved = 0;
    untilUnlocked([&] {
        return XmClipboardRetrieve(display_, window_, mutableText(format), copy.bytes.get(), length,
                                   &retrieved, nullptr);
    });
    if (retrieved == 0) return {};
    copy.length = retrieved;
    copy.bytes[retrieved] = '\0';
    return copy;
}

TextCopy Clipboard::text(std::initializer_list<const char*> formats)
{
    reading_.emplace();
    hearOfLosses(display_);
    untilUnlocked([&] {
        return XmClipboardStartRetrieve(display_, window_, XtLastTimestampProcessed(display_));
    });
    TextCopy copy;
    for (const char* const format : formats) {
        copy = textIn(format);
        if (copy.bytes) break;
    }
    untilUnlocked([&] { return XmClipboardEndRetrieve(display_, window_); });
    return copy;
}

}  // namespace kite
