#include "tools/lab/page_template.h"

#include <stdexcept>
#include <vector>

namespace {

// The values of the enclosing sections, the innermost last.
using Scopes = std::vector<const Json *>;

const Json &find(const Scopes &scopes, const std::string &name) {
    static const Json nothing;
    if (name == ".") return *scopes.back();
    for (auto scope = scopes.rbegin(); scope != scopes.rend(); ++scope)
        if ((*scope)->is_object() && (*scope)->contains(name)) return (**scope)[name];
    return nothing;
}

std::string escaped(const std::string &text) {
    std::string result;
    for (const char letter : text) {
        switch (letter) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '\'':
            result += "&#39;";
            break;
        default:
            result += letter;
        }
    }
    return result;
}

std::string valueText(const Json &value) {
    if (value.is_null()) return {};
    // jsonLine() replaces bytes that are not UTF-8.
    return escaped(value.is_string() ? std::string(Json::parse(jsonLine(value))) : jsonLine(value));
}

bool isEmpty(const Json &value) {
    return value.is_null() || value == false || value == "" || (value.is_structured() && value.empty());
}

class Filler {
public:
    explicit Filler(std::string_view text) : m_text(text) {}

    // Fills the template up to the end of the section, or to its own end for an empty name. isThere: whether to append
    // the result.
    void fill(Scopes &scopes, const std::string &section, bool isThere, std::string &out) {
        for (;;) {
            const size_t hole = m_text.find("{{", m_at);
            if (isThere) out += m_text.substr(m_at, hole == std::string_view::npos ? hole : hole - m_at);
            if (hole == std::string_view::npos) {
                if (!section.empty()) throw std::logic_error("the template does not close " + section);
                return;
            }
            const std::string word = takeWord(hole);
            if (word == '/' + section) return;
            if (word.starts_with('#') || word.starts_with('^')) {
                fillSection(scopes, word, isThere, out);
            } else if (isThere) {
                out += valueText(find(scopes, word));
            }
        }
    }

private:
    std::string takeWord(size_t hole) {
        const size_t end = m_text.find("}}", hole);
        if (end == std::string_view::npos) throw std::logic_error("the template has a hole without an end");
        m_at = end + 2;
        return std::string(m_text.substr(hole + 2, end - hole - 2));
    }

    void fillSection(Scopes &scopes, const std::string &word, bool isThere, std::string &out) {
        const std::string name = word.substr(1);
        const Json &value = find(scopes, name);
        const size_t begin = m_at;
        const bool isShown = isThere && isEmpty(value) == word.starts_with('^');
        const bool isList = isShown && value.is_array() && !value.empty();
        if (!isList) return fillItem(scopes, value, name, isShown, out);
        for (const Json &item : value) {
            m_at = begin;
            fillItem(scopes, item, name, true, out);
        }
    }

    void fillItem(Scopes &scopes, const Json &item, const std::string &name, bool isThere, std::string &out) {
        scopes.push_back(&item);
        fill(scopes, name, isThere, out);
        scopes.pop_back();
    }

    std::string_view m_text;
    size_t m_at = 0;
};

} // namespace

std::string fillTemplate(std::string_view text, const Json &values) {
    std::string out;
    Scopes scopes = {&values};
    Filler(text).fill(scopes, "", true, out);
    return out;
}
