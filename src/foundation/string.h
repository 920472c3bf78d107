// A small text with a malloc buffer of its own, used by the profile loader for its directory and file name. The buffer
// always fits the text exactly: there is no spare room. An object belongs to one thread at a time.
#pragma once

#include <cstdint>

class CKZRTString {
public:
    // As a position: none. As a count: up to the end.
    static constexpr uint64_t npos = ~uint64_t{0};

    CKZRTString();
    // Copies exactly count characters; npos takes strlen. A null text gives the empty string.
    explicit CKZRTString(const char *text, uint64_t count = npos);
    CKZRTString(const CKZRTString &other);
    CKZRTString &operator=(const CKZRTString &other);
    virtual ~CKZRTString();

    [[nodiscard]] const char *data() const { return m_text ? m_text : ""; }
    [[nodiscard]] uint64_t length() const { return m_length; }
    // Bytes in the buffer, terminator included. 0 when memory ran out at construction.
    [[nodiscard]] uint64_t capacity() const { return m_capacity; }
    [[nodiscard]] bool empty() const { return m_length == 0; }

    // The buffer is replaced when its capacity is not greater than the count. Out of memory, the text is unchanged.
    void assign(const char *text, uint64_t count = npos);
    void append(const char *text, uint64_t count = npos);
    void append(const CKZRTString &other) { append(other.data(), other.m_length); }
    // Replaces the buffer with one of one byte.
    void clear();
    // Removes count characters at position. A cut inside the text moves the tail and leaves the length field at its old
    // value, so that it and strlen differ from then on. A cut up to or past the end shortens the text to position, and
    // one that starts after the end lengthens it to position with zero bytes.
    void erase(uint64_t position, uint64_t count);

    // This text followed by the right one, in a buffer that fits. A null right side returns a copy.
    [[nodiscard]] CKZRTString concat(const char *right) const;
    [[nodiscard]] CKZRTString concat(const CKZRTString &right) const;

private:
    [[nodiscard]] bool growTo(uint64_t length);

    char *m_text = nullptr;
    uint64_t m_length = 0;
    uint64_t m_capacity = 0;
};

[[nodiscard]] inline CKZRTString operator+(const CKZRTString &left, const CKZRTString &right) {
    return left.concat(right);
}
[[nodiscard]] inline CKZRTString operator+(const CKZRTString &left, const char *right) {
    return left.concat(right);
}
