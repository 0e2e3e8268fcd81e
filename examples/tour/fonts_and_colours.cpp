// fonts_and_colours.cpp: what text attributes do to controls.

#include <array>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control {
    Close = GUI_CANCEL_BUTTON,
    Fonts = 1,
    Colours,
    Bold,
    Slanted,
    Large,
    SampleLabel,
    SampleEdit,
    SampleButton,
    SampleBar
};

// In dialog units.
constexpr int kSamples = 100;
constexpr int kWidth = 196;

struct Named {
    const char* name;
    const char* attribute;
};

constexpr Named kFonts[] = {{"Helvetica", "Arial"},          {"Courier", "Courier New"},
                            {"Times", "Times"},              {"Schoolbook", "new century schoolbook"},
                            {"The frame's", "VEXVARIABLE"},  {"The output's", "VEXFIXED"}};

constexpr Named kColours[] = {{"black on white", "#000000/#ffffff"},
                              {"white on blue", "#ffffff/#000080"},
                              {"red", "#c00000"},
                              {"on yellow", "/#ffff99"}};

void build()
{
    guiDialog("Fonts and colours");
    guiList(Fonts, 0, 5, 0, 88, GUI_BROWSE);
    guiChoice(Colours, 5, 0, 88);
    guiCheck(Bold, 6, 0, 44, "&bold");
    guiCheck(Slanted, 6, 44, 44, "s&lanted");
    guiCheck(Large, 7, 0, 44, "lar&ge");
    guiLine(GUI_ANONYMOUS, 0, 8, kSamples - 8, 1);
    guiLabel(SampleLabel, 0, kSamples, kWidth - kSamples, "Quick brown foxes");
    guiEdit(SampleEdit, 2, kSamples, kWidth - kSamples, 0, 0);
    guiButton(SampleButton, 4, kSamples, 64, "A button", 0);
    guiProgress(SampleBar, 6, 1, kSamples, kWidth - kSamples);
    guiButton(Close, 9, kWidth - 48, 48, "Close", 1);
}

char flags()
{
    constexpr int kBold = 1;
    constexpr int kSlant = 2;
    constexpr int kSize18 = 8;
    return static_cast<char>((guiGetCheck(Bold) == 1 ? kBold : 0) |
                             (guiGetCheck(Slanted) == 1 ? kSlant : 0) |
                             (guiGetCheck(Large) == 1 ? kSize18 : 0));
}

// The font first: each call begins with the colours that controls are made with.
void showSamples()
{
    const auto font = static_cast<std::size_t>(guiGetSel(Fonts));
    const auto colour = static_cast<std::size_t>(guiGetSel(Colours));
    if (font >= std::size(kFonts) || colour >= std::size(kColours)) return;
    for (const int sample : {SampleLabel, SampleEdit, SampleButton, SampleBar}) {
        guiSetTextAtt(sample, flags(), kFonts[font].attribute);
        guiSetTextAtt(sample, 0, kColours[colour].attribute);
    }
}

void begin()
{
    for (const Named& font : kFonts) guiAppendItem(Fonts, font.name);
    for (const Named& colour : kColours) guiAppendItem(Colours, colour.name);
    guiSetText(SampleEdit, "jump over dogs");
    guiSetPos(SampleBar, 59);
    guiSetFocus(Fonts);
    showSamples();
}

int handle(int event, int id, int, int)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_SELECT || event == GUI_EVENT_VALUE || event == GUI_EVENT_CHECK)
        showSamples();
    if (event == GUI_EVENT_COMMAND && id == Close) guiClose(0);
    return 0;
}

}  // namespace

void showFontsAndColours()
{
    build();
    runDialog(handle);
    report("The fonts were put away");
}

}  // namespace tour
