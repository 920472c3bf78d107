// Stream buffers over bytes in memory, for coding base64 data. Each belongs to one stream and one thread.
#pragma once

#include <cstdint>
#include <streambuf>
#include <vector>

// Collects the written bytes. Accepts whole blocks only: a stream that puts single characters into it fails.
class CVectorByteWrapper : public std::streambuf {
public:
    [[nodiscard]] const std::vector<uint8_t> &bytes() const { return m_bytes; }

protected:
    std::streamsize xsputn(const char *text, std::streamsize count) override;

private:
    std::vector<uint8_t> m_bytes;
    // The capacity that the growth rule uses, which the vector's own capacity may exceed.
    uint32_t m_capacity = 0;
};

// Reads the caller's bytes in [begin, end) without copying them; they must outlive it.
class CImmutableByteWrapper : public std::streambuf {
public:
    CImmutableByteWrapper(const uint8_t *begin, const uint8_t *end) : m_begin(begin), m_end(end), m_current(begin) {}

protected:
    std::streamsize showmanyc() override;
    int_type underflow() override;
    int_type uflow() override;
    int_type pbackfail(int_type given) override;

private:
    const uint8_t *m_begin;
    const uint8_t *m_end;
    const uint8_t *m_current;
};
