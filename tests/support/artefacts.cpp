#include "artefacts.h"

#include <cctype>
#include <fstream>
#include <iostream>

#include "environment.h"
#include "screen.h"
#include "toolkit.h"
#include "widgets.h"

namespace kite::testing::artefacts {

namespace {

std::string fileName = "test";  // set by begin

std::string toFileName(std::string name)
{
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '.' && c != '-') c = '_';
    return name;
}

}  // namespace

void begin(const std::string& testName)
{
    fileName = toFileName(testName) + '.' + environment("KITE_TEST_WM", "mwm");
    std::error_code ignored;
    for (const char* extension : {".png", ".widgets.txt"})
        std::filesystem::remove(pathOf(extension), ignored);
}

std::filesystem::path pathOf(const std::string& extension)
{
    const std::filesystem::path directory = environment("KITE_TEST_ARTEFACTS", KITE_TEST_ARTEFACTS);
    std::error_code ignored;
    std::filesystem::create_directories(directory, ignored);
    return directory / (fileName + extension);
}

void saveScreen()
{
    const std::filesystem::path path = pathOf(".png");
    if (screen::grab().savePng(path))
        std::cout << "[   SCREEN ] " << path.string() << std::endl;
    else
        std::cout << "[   SCREEN ] could not be saved to " << path.string() << std::endl;
}

void saveWidgets()
{
    if (!toolkit::root()) return;
    const std::filesystem::path path = pathOf(".widgets.txt");
    std::ofstream file{path};
    printTree(file, toolkit::root());
    std::cout << "[  WIDGETS ] " << path.string() << std::endl;
}

}  // namespace kite::testing::artefacts
