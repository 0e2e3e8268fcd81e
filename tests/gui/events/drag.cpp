#include "drag.h"

#include "connection.h"
#include "events_support.h"
#include "pointer_picture.h"

namespace kite::testing {

namespace {

// Counts what the source of a drag tells the application about it.
class DragMessages {
public:
    DragMessages() : shell_(App::instance().shell())
    {
        XtAddEventHandler(shell_, NoEventMask, True, arrived, &count_);
    }
    ~DragMessages() { XtRemoveEventHandler(shell_, NoEventMask, True, arrived, &count_); }
    DragMessages(const DragMessages&) = delete;
    DragMessages& operator=(const DragMessages&) = delete;

    bool waitForMore()
    {
        const int before = count_;
        return pumpUntil([=, this] { return count_ > before; });
    }

private:
    static void arrived(Widget, XtPointer count, XEvent* event, Boolean*)
    {
        static const Atom message = atom("_MOTIF_DRAG_AND_DROP_MESSAGE");
        if (event->type == ClientMessage && event->xclient.message_type == message)
            ++*static_cast<int*>(count);
    }

    Widget shell_;
    int count_ = 0;
};

}  // namespace

Drag::Drag(const char* offer, const std::string& bytes) : source_({KITE_DRAG_SOURCE, offer, bytes})
{
    Window const window = wm::waitForWindow("drag_source");
    EXPECT_TRUE(wm::waitUntilSettled(window));
    const Point from = wm::clientRect(window).centre();
    const Point to = rectOf(findWidget("v_text")).centre();
    Robot& robot = Robot::instance();
    DragMessages messages;
    pointTo(from);
    const PointerPicture usual = pointerPicture();
    robot.press(MiddleButton);
    EXPECT_TRUE(pumpUntil([&] { return pointerPicture() != usual; })) << "Nothing is dragged.";
    robot.moveTo(to);
    EXPECT_TRUE(messages.waitForMore()) << "The drag has not come into the frame.";
    robot.moveTo(to + Point{1, 1});
    EXPECT_TRUE(messages.waitForMore()) << "The drag has stopped in the frame.";
    robot.release(MiddleButton);
}

bool Drag::waitUntilAsked()
{
    return pumpUntil([this] { return source_.output().find("FILE_NAME") != std::string::npos; });
}

}  // namespace kite::testing
