// An attribute list of EGL as a range of pairs: for (const auto &[name, value] : AttributeList(attributes)).
#pragma once

#include <iterator>

#include <EGL/egl.h>

// Word: EGLint or EGLAttrib. The list belongs to the caller and must outlive the range.
template <typename Word>
class AttributeList {
public:
    // References, so that a value is not read before it is used.
    struct Pair {
        const Word &name;
        const Word &value;
    };

    class Iterator {
    public:
        explicit constexpr Iterator(const Word *at) : m_at(at) {}
        constexpr Pair operator*() const { return {m_at[0], m_at[1]}; }
        constexpr Iterator &operator++() {
            m_at += 2;
            return *this;
        }
        constexpr bool operator==(std::default_sentinel_t) const { return !m_at || *m_at == EGL_NONE; }

    private:
        const Word *m_at;
    };

    // Ended by EGL_NONE in place of a name; null is an empty list.
    explicit constexpr AttributeList(const Word *list) : m_list(list) {}

    [[nodiscard]] constexpr Iterator begin() const { return Iterator(m_list); }
    [[nodiscard]] constexpr std::default_sentinel_t end() const { return {}; }
    [[nodiscard]] constexpr bool isEmpty() const { return begin() == end(); }

    // The value of the last pair of this name, or the given default without one.
    [[nodiscard]] constexpr Word valueOr(Word name, Word otherwise) const {
        for (const auto &[key, value] : *this) {
            if (key == name) otherwise = value;
        }
        return otherwise;
    }

private:
    const Word *m_list;
};
