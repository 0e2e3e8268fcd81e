#include "painting_support.h"

#include <thread>

#include "artefacts.h"

namespace kite::testing {

namespace {

// The text paints all of itself anew, by the server's demand.
screen::Picture fresh()
{
    Widget const text = outputText();
    XClearArea(XtDisplay(text), XtWindow(text), 0, 0, 0, 0, True);
    settle();
    return screen::grab(text);
}

}  // namespace

void letQuietPass()
{
    settle();
    std::this_thread::sleep_for(milliseconds{40});
}

bool isPainted()
{
    XSync(toolkit::display(), False);
    const Shot shown;
    return shown.picture() == fresh();
}

void expectPainted(const std::string& after)
{
    XSync(toolkit::display(), False);
    const Shot shown;
    const screen::Picture wanted = fresh();
    if (shown.picture() == wanted) return;
    const auto shownPath = artefacts::pathOf("shown.png");
    const auto wantedPath = artefacts::pathOf("wanted.png");
    shown.picture().savePng(shownPath);
    wanted.savePng(wantedPath);
    ADD_FAILURE() << after << ": not painted; see " << shownPath << " and " << wantedPath;
}

}  // namespace kite::testing
