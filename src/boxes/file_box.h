// file_box.h: the box in which the user chooses a file or a directory.

#pragma once

#include <Xm/Xm.h>

#include <optional>
#include <string>

#include "boxes/modal_box.h"

namespace kite {

// The pattern of the files that are listed: the second part of the filter, "Texts|*.txt|". Everything for a
// filter of one part.
std::string firstPattern(const std::string& filter);

class FileBox {
public:
    struct Content {
        std::string title;
        std::string pattern;
        std::string initialFile;  // empty: none
    };

    // Makes the box, not shown yet.
    explicit FileBox(const Content& content);

    // Null when the toolkit could not make it, or once it has been destroyed.
    Widget widget() const { return box_.widget(); }
    Widget child(unsigned char which) const { return box_.child(which); }
    void removeParts(std::initializer_list<unsigned char> parts) { box_.removeParts(parts); }

    // Lets the user choose, again when it is called again: the selection text, at most 1023 bytes. None when the
    // user gives up.
    std::optional<std::string> ask();

private:
    void prepare(const Content& content);

    ModalBox box_;
};

}  // namespace kite
