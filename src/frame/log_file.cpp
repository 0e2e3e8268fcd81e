#include "frame/log_file.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "toolkit/never_destroyed.h"

namespace {

// A file that is open for one call. Its buffer is here and not on the heap: opening the log for every
// line then costs no more than the bare system calls.
class OpenFile {
public:
    OpenFile(const char* path, const char* mode) : file_(path ? std::fopen(path, mode) : nullptr)
    {
        if (file_) std::setvbuf(file_, buffer_.data(), _IOFBF, buffer_.size());
    }
    ~OpenFile()
    {
        // What a full disk does not take is lost; the log says nothing about itself.
        if (file_) std::fclose(file_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::FILE* get() const { return file_; }

    bool isEmpty() const { return std::fseek(file_, 0, SEEK_END) != 0 || std::ftell(file_) <= 0; }

private:
    std::FILE* file_;
    std::array<char, 4096> buffer_;
};

// One of the two framing lines, with the local date and time.
void writeStamp(std::FILE* file, const char* what)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    tzset();  // the host may have changed the time zone
    localtime_r(&now, &local);
    std::fprintf(file, ">>>%s: %04d.%02d.%02d %02d:%02d:%02d\n", what, local.tm_year + 1900,
                 local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

struct StopAtUnload {
    ~StopAtUnload() { kite::outputLog().stop(); }
};

}  // namespace

// Never destroyed: a host may write in its last moments, when the stop line is there already.
LogFile& kite::outputLog()
{
    static auto& log = neverDestroyed<LogFile>();
    static const StopAtUnload atUnload;
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

    const OpenFile file{path, truncate ? "w" : "a"};
    stream = file.get();
    if (!stream) return;  // the path stays: every write tries again
    if (!file.isEmpty()) std::fputc('\n', stream);
    writeStamp(stream, "LogStarted");
    std::fputc('\n', stream);
    endsWithBlankLine = 1;
}

void LogFile::write(const char* text, int asLine)
{
    if (!text) return;
    const OpenFile file{path, "a"};
    stream = file.get();
    if (!stream) return;
    std::fputs(text, stream);
    if (!asLine) return;
    // A text that is not a line leaves the flag alone: right after start() the stop line then follows
    // on the text's own line, and readers of the log rely on nothing being put in between.
    std::fputc('\n', stream);
    endsWithBlankLine = *text ? 0 : 1;
}

void LogFile::stop()
{
    stream = nullptr;
    const OpenFile file{path, "a"};
    if (!file.get()) return;
    if (!endsWithBlankLine) std::fputc('\n', file.get());
    writeStamp(file.get(), "LogStopped");
}
