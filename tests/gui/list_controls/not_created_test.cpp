// The toolkit makes no widget: the host hears of it, and the dialog is as it was.

#include <cstdarg>

#include "list_controls_support.h"

using namespace kite::testing;

namespace {

std::string refusedName;  // of the widgets that are not made; none when empty

class Refusal {
public:
    explicit Refusal(const std::string& name) { refusedName = name; }
    ~Refusal() { refusedName.clear(); }
    Refusal(const Refusal&) = delete;
    Refusal& operator=(const Refusal&) = delete;
};

struct Kind {
    std::string words;
    std::string widget;
    std::function<void(int id)> make;
};

// A combo box says what an edit says.
const std::vector<Kind>& allKinds()
{
    const auto makeList = [](int id) { guiList(id, 0, 9, 0, 40, GUI_BROWSE); };
    static const std::vector<Kind> kinds{
        {"List", "v_dlgscroll", makeList},
        {"List", "v_dlglist", makeList},
        {"Choice", "v_dlgchoice", [](int id) { guiChoice(id, 1, 0, 40); }},
        {"Edit", "v_dlgcombo", [](int id) { guiCombo(id, 2, 0, 40); }},
    };
    return kinds;
}

}  // namespace

// The program's own comes before the toolkit's. Names and values only, as the library passes them.
extern "C" Widget XtVaCreateManagedWidget(const char* name, WidgetClass kind, Widget parent, ...)
{
    if (name && refusedName == name) return nullptr;
    std::vector<Arg> arguments;
    va_list list;
    va_start(list, parent);
    while (char* const resourceName = va_arg(list, char*)) {
        const XtArgVal value = va_arg(list, XtArgVal);
        arguments.push_back({resourceName, value});
    }
    va_end(list);
    return XtCreateManagedWidget(name, kind, parent, arguments.data(),
                                 static_cast<Cardinal>(arguments.size()));
}

GUI_TEST(ListControlNotCreated, IsReportedWithItsId)
{
    ASSERT_EQ(guiDialog(""), 0);
    for (const Kind& kind : allKinds()) {
        SCOPED_TRACE(kind.widget);
        const Refusal refusal{kind.widget};
        EXPECT_MISUSE(kind.make(12), kind.words + ": cannot create control 12");
    }
    EXPECT_EQ(childrenOf(newestBoard()).size(), 0U) << "a scrolled window without its list";
    guiClose(0);
}

// Its id is free, and it takes no room.
GUI_TEST(ListControlNotCreated, LeavesNothingBehind)
{
    runDialog({.build =
                   [] {
                       for (const Kind& kind : allKinds()) {
                           const Refusal refusal{kind.widget};
                           errorsDuring([&] { kind.make(1); });
                       }
                       guiLabel(1, 0, 0, 10, "1");
                   },
               .use =
                   [](Shown dialog) {
                       EXPECT_EQ(XtName(controlOf(1)), std::string{"v_dlglabel"});
                       EXPECT_LT(placeOf(dialog.widget()).height, 3 * placeOf(controlOf(1)).height);
                   }});
}
