// file_box_bench.cpp: a file box on a directory of many files, from its first widget until it has gone.

#include <Xm/FileSB.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "bare_frame.h"
#include "in_frame.h"
#include "measured.h"

namespace {

using bench::Measured;

constexpr int kFiles = 10000;
constexpr char kFont[] = "-adobe-helvetica-medium-r-normal--14-100-100-100-p-*-iso8859-1";

class ManyFiles {
public:
    ManyFiles()
    {
        std::string name = std::filesystem::temp_directory_path() / "kitegui-bench-XXXXXX";
        directory_ = mkdtemp(name.data());
        for (int i = 0; i < kFiles; ++i)
            std::ofstream{directory_ / ("file" + std::to_string(i) + ".txt")};
        std::filesystem::current_path(directory_);  // where a box without a file begins
    }
    ~ManyFiles()
    {
        std::filesystem::current_path(before_);
        std::filesystem::remove_all(directory_);
    }
    ManyFiles(const ManyFiles&) = delete;
    ManyFiles& operator=(const ManyFiles&) = delete;

    std::string mask() const { return directory_ / "*"; }

private:
    std::filesystem::path before_ = std::filesystem::current_path();
    std::filesystem::path directory_;
};

void cancelWhenPainted(XtPointer, XtIntervalId*)
{
    Widget const box = guiGetTopWnd();
    bench::processUntilAllPainted(box);
    XtCallCallbacks(box, XmNcancelCallback, nullptr);
}

void openInLibrary(benchmark::State& state)
{
    const ManyFiles files;
    bench::runInFrame([&] {
        Measured measurement{state};
        Widget const frame = guiGetTopWnd();
        for ([[maybe_unused]] auto iteration : state) {
            char buffer[1024] = "";
            measurement.begin(XtDisplay(frame));
            XtAppAddTimeOut(XtWidgetToApplicationContext(frame), 0, cancelWhenPainted, nullptr);
            guiOpenFileBox("Open", "All|*|", nullptr, 1, buffer, sizeof buffer);
            bench::processAll(frame);
            measurement.end(XtDisplay(frame));
        }
        measurement.report();
    });
}

Widget createBare(Widget parent, XmFontList font, const std::string& mask)
{
    XmString text = XmStringCreateLocalized(const_cast<char*>(mask.c_str()));
    Arg arguments[6];
    XtSetArg(arguments[0], XmNdirMask, text);
    XtSetArg(arguments[1], XmNwidth, 400);
    XtSetArg(arguments[2], XmNheight, 300);
    XtSetArg(arguments[3], XmNlabelFontList, font);
    XtSetArg(arguments[4], XmNbuttonFontList, font);
    XtSetArg(arguments[5], XmNtextFontList, font);
    Widget const box = XmCreateFileSelectionDialog(parent, const_cast<char*>("bare"), arguments, 6);
    XmStringFree(text);
    return box;
}

void openBare(benchmark::State& state)
{
    const ManyFiles files;
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    XmFontListEntry const entry =
        XmFontListEntryLoad(frame.display, const_cast<char*>(kFont), XmFONT_IS_FONT,
                            const_cast<char*>(XmFONTLIST_DEFAULT_TAG));
    XmFontList const font = XmFontListAppendEntry(nullptr, entry);
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        measurement.begin(frame.display);
        Widget const box = createBare(frame.mainWindow, font, files.mask());
        XtManageChild(box);
        bench::processUntilAllPainted(box);
        XtUnmanageChild(box);
        XtDestroyWidget(XtParent(box));
        bench::processAll(frame.mainWindow);
        measurement.end(frame.display);
    }
    measurement.report();
    bench::closeBareFrame(frame);
}

}  // namespace

BENCHMARK(openBare)
    ->Name("file box on 10,000 files, opened and closed/bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(openInLibrary)
    ->Name("file box on 10,000 files, opened and closed/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
