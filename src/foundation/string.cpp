#include "foundation/string.h"

#include <cstdlib>
#include <cstring>

namespace {

// A buffer for length characters and the terminator. Null when memory is short or the sum wraps.
char *newBuffer(uint64_t length) {
    return length == CKZRTString::npos ? nullptr : static_cast<char *>(malloc(length + 1));
}

uint64_t countOf(const char *text, uint64_t count) {
    if (!text) return 0;
    return count == CKZRTString::npos ? strlen(text) : count;
}

} // namespace

CKZRTString::CKZRTString() {
    clear();
}

CKZRTString::CKZRTString(const char *text, uint64_t count) {
    assign(text, count);
}

CKZRTString::CKZRTString(const CKZRTString &other) {
    assign(other.data(), other.m_length);
}

CKZRTString &CKZRTString::operator=(const CKZRTString &other) {
    if (this != &other) assign(other.data(), other.m_length);
    return *this;
}

CKZRTString::~CKZRTString() {
    free(m_text);
}

void CKZRTString::assign(const char *text, uint64_t count) {
    count = countOf(text, count);
    if (m_capacity <= count) {
        char *buffer = newBuffer(count);
        if (!buffer) return;
        // The old buffer is freed last, since text may point into it.
        if (count) memcpy(buffer, text, count);
        free(m_text);
        m_text = buffer;
        m_capacity = count + 1;
    } else if (count) {
        memmove(m_text, text, count);
    }
    m_length = count;
    m_text[count] = '\0';
}

// Makes room for length characters in a buffer of exactly that size; text, length and terminator stay as they were.
bool CKZRTString::growTo(uint64_t length) {
    if (m_capacity > length) return true;
    char *buffer = newBuffer(length);
    if (!buffer) return false;
    memcpy(buffer, data(), m_length + 1);
    free(m_text);
    m_text = buffer;
    m_capacity = length + 1;
    return true;
}

void CKZRTString::append(const char *text, uint64_t count) {
    count = countOf(text, count);
    if (count == 0 || count >= npos - m_length) return;
    const uint64_t newLength = m_length + count;
    if (m_capacity > newLength) {
        memmove(m_text + m_length, text, count);
    } else {
        char *buffer = newBuffer(newLength);
        if (!buffer) return;
        memcpy(buffer, data(), m_length);
        memcpy(buffer + m_length, text, count);
        // The old buffer is freed last, since text may point into it.
        free(m_text);
        m_text = buffer;
        m_capacity = newLength + 1;
    }
    m_length = newLength;
    m_text[m_length] = '\0';
}

void CKZRTString::clear() {
    char *buffer = newBuffer(0);
    if (!buffer) return;
    free(m_text);
    m_text = buffer;
    m_text[0] = '\0';
    m_length = 0;
    m_capacity = 1;
}

void CKZRTString::erase(uint64_t position, uint64_t count) {
    if (position < m_length && count < m_length - position) {
        const uint64_t tail = position + count;
        memmove(m_text + position, m_text + tail, m_length - tail + 1);
        return;
    }
    if (position > m_length) {
        if (!growTo(position)) return;
        memset(m_text + m_length, 0, position - m_length);
    }
    m_length = position;
    if (m_text) m_text[position] = '\0';
}

CKZRTString CKZRTString::concat(const char *right) const {
    return concat(CKZRTString(right));
}

CKZRTString CKZRTString::concat(const CKZRTString &right) const {
    CKZRTString whole(*this);
    whole.append(right);
    return whole;
}
