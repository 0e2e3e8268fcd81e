// editor_buffer.h: the text of the editor box, before the user edits it and afterwards. No X here.

#pragma once

#include <cstddef>
#include <string_view>

namespace kite {

class EditorBuffer {
public:
    EditorBuffer() = default;
    ~EditorBuffer() { reset(); }
    EditorBuffer(const EditorBuffer&) = delete;
    EditorBuffer& operator=(const EditorBuffer&) = delete;

    // Empties it and gives its memory back.
    void reset();

    // Appends a line and a line end. False when there is no memory for it; the buffer is as it was then.
    bool append(std::string_view line);

    // Replaces what is there by a text, which is read from its beginning. False when there is no memory for it;
    // the buffer is empty then.
    bool assign(std::string_view text);

    bool hasText() const { return text_ != nullptr; }
    const char* text() const { return text_; }  // null-terminated; null when there is none

    // A last line without a line end counts as well.
    int lines() const;

    // The next line, or as much of it as fits, into a buffer of `size` bytes; returns its length. Carriage
    // returns are left out. When the text has been read to its end, the buffer is empty.
    int read(char* line, int size);

private:
    bool makeRoomFor(std::size_t size);

    char* text_ = nullptr;
    std::size_t capacity_ = 0;  // bytes
    std::size_t length_ = 0;
    std::size_t position_ = 0;  // of the next byte to read
};

}  // namespace kite
