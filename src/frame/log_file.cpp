#include "frame/log_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <string_view>

namespace {

// A file that is open for appending. System calls alone: a buffered stream would cost half as much
// again for one short line, and a line that goes out in one call is never torn by another writer.
class OpenFile {
public:
    OpenFile(const char* path, int flags)
        : descriptor_(path ? open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | flags, 0666)
                           : -1)
    {
    }
    ~OpenFile()
    {
        if (isOpen()) close(descriptor_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }

    bool isEmpty() const
    {
        struct stat status {};
        return fstat(descriptor_, &status) != 0 || status.st_size == 0;
    }

    // What a full disk does not take is lost; the log says nothing about itself.
    void append(std::string_view text, std::string_view end = {}) const
    {
        while (!text.empty() || !end.empty()) {
            const std::array<iovec, 2> pieces{piece(text), piece(end)};
            const ssize_t count = writev(descriptor_, pieces.data(), pieces.size());
            if (count < 0 && errno == EINTR) continue;
            if (count <= 0) return;
            const auto ofText = std::min(text.size(), static_cast<std::size_t>(count));
            text.remove_prefix(ofText);
            end.remove_prefix(static_cast<std::size_t>(count) - ofText);
        }
    }

private:
    static iovec piece(std::string_view bytes)
    {
        return {const_cast<char*>(bytes.data()), bytes.size()};
    }

    int descriptor_;
};

// One of the two framing lines, with the local date and time.
std::string stampedLine(const char* what)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 96> line{};
    std::snprintf(line.data(), line.size(), ">>>%s: %04d.%02d.%02d %02d:%02d:%02d\n", what,
                  local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                  local.tm_min, local.tm_sec);
    return line.data();
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
    if (wasWritten) stop();
    if (!newPath || !*newPath) return;
    char* const copy = strdup(newPath);  // before the old one goes: it may be the same string
    if (!copy) return;
    std::free(path);
    path = copy;

    const OpenFile file{path, truncate ? O_TRUNC : 0};
    wasWritten = file.isOpen();
    if (!wasWritten) return;  // the path stays: every write tries again
    const std::string gap = file.isEmpty() ? "" : "\n";
    file.append(gap + stampedLine("LogStarted") + "\n");
    endsWithBlankLine = 1;
}

void LogFile::write(const char* text, int asLine)
{
    if (!text) return;
    const OpenFile file{path, 0};
    wasWritten = file.isOpen();
    if (!wasWritten) return;
    file.append(text, asLine ? "\n" : "");
    // A text that is not a line leaves the flag alone: right after start() the stop line then follows
    // on the text's own line, and readers of the log rely on nothing being put in between.
    if (asLine) endsWithBlankLine = *text ? 0 : 1;
}

void LogFile::stop()
{
    wasWritten = 0;
    const OpenFile file{path, 0};
    if (!file.isOpen()) return;
    const std::string gap = endsWithBlankLine ? "" : "\n";
    file.append(gap + stampedLine("LogStopped"));
}
