#include "commands/accelerator.h"

#include "toolkit/label_text.h"

namespace kite::commands {

namespace {

constexpr char kToUpperCase = 'A' - 'a';

}  // namespace

bool isNoAccelerator(char key)
{
    return key == '\0' || key == ' ';
}

bool isAccelerator(char key)
{
    return isLetterOrDigit(key);
}

Accelerator acceleratorFor(char key)
{
    const bool isLower = key >= 'a' && key <= 'z';
    const bool isUpper = key >= 'A' && key <= 'Z';
    const std::string name(1, isLower ? static_cast<char>(key + kToUpperCase) : key);
    if (isUpper) return {"Ctrl Shift<Key>" + name, "Ctrl+Shift+" + name};
    return {"Ctrl<Key>" + name, "Ctrl+" + name};
}

}  // namespace kite::commands
