#include "frame/log_file.h"

#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

// Writes one of the two framing lines with the local date and time.
void writeStamp(std::FILE* file, const char* what)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::fprintf(file, ">>>%s: %04d.%02d.%02d %02d:%02d:%02d\n", what, local.tm_year + 1900,
                 local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

std::FILE* openToAppend(const char* path)
{
    return path ? std::fopen(path, "a") : nullptr;
}

bool isEmpty(std::FILE* file)
{
    return std::fseek(file, 0, SEEK_END) != 0 || std::ftell(file) <= 0;
}

}  // namespace

LogFile& kite::outputLog()
{
    static constinit LogFile log;
    return log;
}

LogFile::~LogFile()
{
    stop();
    std::free(path);
}

void LogFile::start(const char* newPath, int truncate)
{
    if (stream) stop();
    if (!newPath || !*newPath) return;
    char* const copy = strdup(newPath);  // before the old one goes: it may be the same string
    if (!copy) return;
    std::free(path);
    path = copy;
    stream = std::fopen(path, truncate ? "w" : "a");
    if (!stream) return;  // the path stays: every write tries again
    if (!isEmpty(stream)) std::fputc('\n', stream);
    writeStamp(stream, "LogStarted");
    std::fputc('\n', stream);
    endsWithBlankLine = 1;
    std::fclose(stream);
}

void LogFile::write(const char* text, int asLine)
{
    if (!text) return;
    stream = openToAppend(path);
    if (!stream) return;
    std::fputs(text, stream);
    // A text that is not a line leaves the flag alone: a stop line right after start() and such a text
    // continues on the text's own line, and readers of the log rely on nothing being put in between.
    if (asLine) {
        std::fputc('\n', stream);
        endsWithBlankLine = *text ? 0 : 1;
    }
    std::fclose(stream);
}

void LogFile::stop()
{
    stream = nullptr;
    std::FILE* const file = openToAppend(path);
    if (!file) return;
    if (!endsWithBlankLine) std::fputc('\n', file);
    writeStamp(file, "LogStopped");
    std::fclose(file);
}
