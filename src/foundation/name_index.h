// Maps a name to its row in a constant table, by a hash table built at compile time.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

template <size_t rowCount>
class NameIndex {
public:
    static constexpr size_t none = rowCount;

    // Of equal names the first one is found.
    consteval explicit NameIndex(const std::array<const char *, rowCount> &names) : m_names(names) {
        m_rows.fill(none);
        for (size_t row = 0; row < rowCount; ++row) {
            size_t place = firstPlace(names[row]);
            while (m_rows[place % placeCount] != none)
                ++place;
            m_rows[place % placeCount] = static_cast<uint16_t>(row);
        }
    }

    // The row of the name, or none.
    [[nodiscard]] size_t find(const char *name) const {
        for (size_t place = firstPlace(name);; ++place) {
            const uint16_t row = m_rows[place % placeCount];
            if (row == none || strcmp(m_names[row], name) == 0) return row;
        }
    }

private:
    // At most half full, so that every search terminates.
    static constexpr size_t placeCount = std::bit_ceil(rowCount * 2 + 1);
    static_assert(rowCount < UINT16_MAX);

    // FNV-1a.
    static constexpr size_t firstPlace(const char *name) {
        uint32_t hash = 2166136261u;
        for (; *name; ++name)
            hash = (hash ^ static_cast<uint8_t>(*name)) * 16777619u;
        return hash ^ hash >> 16;
    }

    std::array<const char *, rowCount> m_names;
    std::array<uint16_t, placeCount> m_rows{};
};
