// modal_box.h: what all standard boxes share: being shown, waiting for the answer, going away.

#pragma once

#include <Xm/Xm.h>

#include <initializer_list>
#include <optional>
#include <vector>

#include "frame/top_window.h"
#include "toolkit/compound_string.h"
#include "toolkit/widget_ref.h"

namespace kite {

// The buttons of a box get one width; which one differs by box.
enum class ButtonWidth {
    TripleOk,       // three times OK's natural width
    NaturalCancel,  // Cancel's natural width
};

class ModalBox {
public:
    using Creator = Widget (*)(Widget parent, String name, ArgList arguments, Cardinal count);

    // What a creator makes of the text: XmNmessageString, XmNselectionLabelString.
    struct Look {
        Creator create;
        const char* widgetName;
        const char* titleSuffix;  // behind the application title
        char* textResource;
    };

    // Makes the box, not shown yet.
    ModalBox(const Look& look, const char* text);

    // A box that was made already, in a shell of its own; null when that was not possible.
    explicit ModalBox(Widget box);
    ~ModalBox();

    ModalBox(const ModalBox&) = delete;
    ModalBox& operator=(const ModalBox&) = delete;

    // Null when the toolkit could not make it, or once it has been destroyed.
    Widget widget() const { return box_.get(); }
    Widget child(unsigned char which) const;

    // Takes away the parts that the box does not use.
    void removeParts(std::initializer_list<unsigned char> parts);

    // Puts parts into the dialog font, when there is one.
    static void useDialogFont(std::initializer_list<Widget> parts);

    // The look of dialog buttons.
    static void prepareButton(Widget button);

    // Gives the buttons their width and that look.
    void finishButtons(ButtonWidth width, const std::vector<Widget>& buttons);

    // A press of the button, a callback or a close request answers with the value.
    void answerOnPress(Widget button, int answer);
    void answerOn(Widget widget, const char* callback, int answer);
    void answerOnClose(int answer);

    // Shows the box as the top window, which it stays until it goes, and waits for an answer; once more when it
    // is called again. A box that is destroyed meanwhile counts as closed.
    int run();

private:
    enum { kPending = -999 };  // no answer is this one

    struct Answer {
        int* result;
        int value;
    };
    Answer* newAnswer(int value);
    static void answered(Widget, XtPointer answer, XtPointer);

    static constexpr int kMostAnswers = 4;  // OK, No, Cancel, close request
    Answer answers_[kMostAnswers];
    int answerCount_ = 0;
    int result_ = kPending;
    int whenClosed_ = kPending;
    WidgetRef box_;
    std::optional<TopWindowScope> shown_;
};

}  // namespace kite
