// The newest lines of an endless text, numbered from 0 so that a reader can continue where it stopped.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

class BoundedLines {
public:
    // The oldest lines are removed when there are more lines, or more bytes in them.
    BoundedLines(size_t mostLines, size_t mostBytes) : m_mostLines(mostLines), m_mostBytes(mostBytes) {}

    void add(std::string line) {
        m_bytes += line.size();
        m_lines.push_back(std::move(line));
        while (m_lines.size() > m_mostLines || m_bytes > m_mostBytes) {
            m_bytes -= m_lines.front().size();
            m_lines.pop_front();
            ++m_begin;
        }
    }
    // Numbering continues.
    void clear() {
        m_begin = end();
        m_lines.clear();
        m_bytes = 0;
    }

    // The numbers of the oldest line and of the next one.
    [[nodiscard]] uint64_t begin() const { return m_begin; }
    [[nodiscard]] uint64_t end() const { return m_begin + m_lines.size(); }
    [[nodiscard]] const std::string &operator[](uint64_t number) const { return m_lines[number - m_begin]; }

private:
    const size_t m_mostLines, m_mostBytes;
    std::deque<std::string> m_lines;
    size_t m_bytes = 0;
    uint64_t m_begin = 0;
};
