#include "boxes/print_command.h"

#include "frame/settings.h"

namespace kite {

namespace {

constexpr char kFilePlace[] = "%file";
constexpr std::size_t kLongestLine = 2047;  // bytes

std::string defaultCommand(bool wrapsLines)
{
    std::string command = "lp -c";
    if (settings::printsAcross()) command += " -olandscape";
    if (wrapsLines) command += " -oeolwrap";
    return command;
}

}  // namespace

std::optional<std::string> printCommandFor(const std::string& file, bool wrapsLines)
{
    std::string line = settings::printCommand(defaultCommand(wrapsLines));
    if (line.empty()) return std::nullopt;
    const std::size_t place = line.find(kFilePlace);
    if (place == std::string::npos)
        line += ' ' + file;
    else
        line.replace(place, sizeof kFilePlace - 1, file);
    if (line.size() > kLongestLine) return std::nullopt;
    return line;
}

}  // namespace kite
