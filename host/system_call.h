// system_call.h: what system calls need around them: an owner for descriptors, and persistence.

#pragma once

#include <cerrno>
#include <unistd.h>

namespace kitehost {

// Repeats a system call for as long as a signal interrupts it.
template <class Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}

class FileDescriptor {
public:
    explicit FileDescriptor(int opened) : number{opened} {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    ~FileDescriptor()
    {
        if (isOpen()) close(number);
    }

    bool isOpen() const { return number >= 0; }

    int get() const { return number; }

private:
    const int number;
};

}  // namespace kitehost
