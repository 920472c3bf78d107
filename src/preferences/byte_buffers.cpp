#include "preferences/byte_buffers.h"

#include <algorithm>
#include <cstring>

// Grows by the capacity and not by the size: an append as long as the two are equal, but once they differ (from the
// fourth equal block on) each block is followed by zero bytes.
std::streamsize CVectorByteWrapper::xsputn(const char *text, std::streamsize count) {
    // An empty block must not append zero bytes.
    if (count <= 0) return 0;
    const size_t oldSize = m_bytes.size();
    const uint32_t newSize = m_capacity + static_cast<uint32_t>(count);
    // The sum has 32 bits. If it wraps, the block does not fit.
    if (newSize < oldSize || newSize - oldSize < static_cast<size_t>(count)) return 0;
    if (newSize > m_capacity) {
        const uint32_t twice = m_capacity > UINT32_MAX / 2 ? UINT32_MAX : m_capacity * 2;
        m_capacity = std::max(twice, newSize);
        m_bytes.reserve(m_capacity);
    }
    m_bytes.resize(newSize);
    memcpy(m_bytes.data() + oldSize, text, static_cast<size_t>(count));
    return count;
}

std::streamsize CImmutableByteWrapper::showmanyc() {
    return m_end - m_current;
}

CImmutableByteWrapper::int_type CImmutableByteWrapper::underflow() {
    return m_current == m_end ? traits_type::eof() : *m_current;
}

CImmutableByteWrapper::int_type CImmutableByteWrapper::uflow() {
    return m_current == m_end ? traits_type::eof() : *m_current++;
}

CImmutableByteWrapper::int_type CImmutableByteWrapper::pbackfail(int_type given) {
    if (m_current == m_begin) return traits_type::eof();
    if (given != traits_type::eof() && given != m_current[-1]) return traits_type::eof();
    return *--m_current;
}
