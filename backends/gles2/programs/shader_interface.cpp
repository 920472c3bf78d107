#include "programs/shader_interface.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace {

using Tokens = std::vector<std::string_view>;

bool isOfWord(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) || character == '_';
}

// The text after the comment or directive at its start; the text itself if it starts with none.
std::string_view behindNoise(std::string_view text) {
    if (text.starts_with("/*")) return text.substr(std::min(text.find("*/", 2), text.size() - 2) + 2);
    const bool isLine = text.starts_with("//") || text.starts_with('#');
    return isLine ? text.substr(std::min(text.find('\n'), text.size())) : text;
}

// The words, numbers and punctuators, without comments and directives.
Tokens tokensOf(std::string_view text) {
    Tokens tokens;
    while (!text.empty()) {
        const std::string_view rest = behindNoise(text);
        if (rest.size() != text.size()) {
            text = rest;
        } else if (std::isspace(static_cast<unsigned char>(text.front()))) {
            text.remove_prefix(1);
        } else {
            const auto end = std::ranges::find_if_not(text, isOfWord) - text.begin();
            const auto size = std::max<size_t>(static_cast<size_t>(end), 1);
            tokens.push_back(text.substr(0, size));
            text.remove_prefix(size);
        }
    }
    return tokens;
}

bool isPrecision(std::string_view word) {
    return word == "lowp" || word == "mediump" || word == "highp";
}

bool isQualifier(std::string_view word) {
    constexpr std::string_view all[] = {"in",   "out",       "smooth",  "centroid", "sample",
                                        "flat", "invariant", "precise", "const",    "noperspective"};
    return std::ranges::find(all, word) != std::end(all);
}

// The type whose default precision a type uses: float, int or none.
std::string_view precisionClass(std::string_view type) {
    if (type == "float" || type.starts_with("vec") || type.starts_with("mat")) return "float";
    if (type == "int" || type == "uint" || type.starts_with("ivec") || type.starts_with("uvec")) return "int";
    return "";
}

// Reads a sequence of declarations.
class Parser {
public:
    Parser(const Tokens &tokens, GLenum stage, std::string_view direction) : m_tokens(tokens), m_direction(direction) {
        m_precisions["int"] = stage == GL_VERTEX_SHADER ? "highp" : "mediump";
        if (stage == GL_VERTEX_SHADER) m_precisions["float"] = "highp";
    }

    ShaderInterface read() {
        while (!isAtEnd())
            readGlobal();
        return std::move(m_found);
    }

private:
    struct Qualifiers {
        std::string location;
        std::string precision;
        bool isOfInterface = false;
        bool isFlat = false;
    };

    [[nodiscard]] bool isAtEnd() const { return m_at >= m_tokens.size(); }
    [[nodiscard]] std::string_view peek() const { return isAtEnd() ? std::string_view() : m_tokens[m_at]; }
    std::string_view take() { return isAtEnd() ? std::string_view() : m_tokens[m_at++]; }
    bool takeIf(std::string_view token) {
        if (peek() != token) return false;
        ++m_at;
        return true;
    }
    // Skips up to the token that closes the next pair.
    void skipPair(std::string_view open, std::string_view close) {
        int depth = 0;
        do {
            const std::string_view token = take();
            depth += token == open ? 1 : token == close ? -1 : 0;
        } while (depth > 0 && !isAtEnd());
    }

    void readGlobal() {
        if (takeIf("precision")) {
            const auto precision = take();
            m_precisions[std::string(take())] = precision;
        } else if (takeIf("struct")) {
            const std::string name(take());
            m_structs[name] = name + readMembers(false);
        } else {
            const Qualifiers qualifiers = readQualifiers();
            if (qualifiers.isOfInterface) return readVariable(qualifiers);
        }
        skipStatement();
    }

    // Skips past the next semicolon, or past the body of a function.
    void skipStatement() {
        while (!isAtEnd()) {
            if (peek() == "{") {
                const bool isFunction = m_at > 0 && m_tokens[m_at - 1] == ")";
                skipPair("{", "}");
                if (isFunction) return;
            } else if (take() == ";") {
                return;
            }
        }
    }

    Qualifiers readQualifiers() {
        Qualifiers found;
        for (;;) {
            if (takeIf("layout")) {
                const size_t begin = m_at;
                skipPair("(", ")");
                for (size_t at = begin; at + 2 < m_at; ++at)
                    if (m_tokens[at] == "location" && m_tokens[at + 1] == "=") found.location = m_tokens[at + 2];
            } else if (isPrecision(peek())) {
                found.precision = take();
            } else if (isQualifier(peek())) {
                found.isFlat |= peek() == "flat";
                found.isOfInterface |= peek() == m_direction;
                take();
            } else {
                return found;
            }
        }
    }

    std::string readArray() {
        std::string text;
        while (peek() == "[") {
            const size_t begin = m_at;
            skipPair("[", "]");
            for (size_t at = begin; at < m_at; ++at)
                text += m_tokens[at];
        }
        return text;
    }

    // The next type, in a form that is equal to a matching one on the other side.
    std::string readType(const Qualifiers &qualifiers) {
        const std::string type(take());
        const auto structure = m_structs.find(type);
        if (structure != m_structs.end()) return (qualifiers.isFlat ? "flat " : "") + structure->second;
        const auto usual = m_precisions.find(precisionClass(type));
        const std::string &precision =
            qualifiers.precision.empty() && usual != m_precisions.end() ? usual->second : qualifiers.precision;
        return (qualifiers.isFlat ? "flat " : "") + precision + ' ' + type;
    }

    // The members of a block or a struct, with the braces.
    std::string readMembers(bool areOfBlock) {
        std::string text = "{";
        if (!takeIf("{")) return text;
        while (!isAtEnd() && !takeIf("}")) {
            const Qualifiers qualifiers = readQualifiers();
            const std::string type = readType(qualifiers) + readArray();
            do {
                const std::string name(take());
                text += (areOfBlock ? qualifiers.location + ' ' : "") + type + ' ' + name + readArray() + ';';
            } while (takeIf(","));
            takeIf(";");
        }
        return text + '}';
    }

    void readVariable(const Qualifiers &qualifiers) {
        const std::string place = qualifiers.location.empty() ? "" : "location " + qualifiers.location;
        const bool isBlock = m_at + 1 < m_tokens.size() && m_tokens[m_at + 1] == "{";
        if (isBlock) {
            const std::string name(take());
            const std::string members = readMembers(true);
            if (peek() != ";") take();
            add(name, place + members + readArray());
            return skipStatement();
        }
        const std::string type = readType(qualifiers) + readArray();
        do {
            const std::string name(take());
            add(place.empty() ? name : place, type + readArray());
        } while (takeIf(","));
        skipStatement();
    }

    void add(const std::string &key, std::string what) {
        if (!key.starts_with("gl_")) m_found.insert_or_assign(key, std::move(what));
    }

    const Tokens &m_tokens;
    const std::string_view m_direction;
    size_t m_at = 0;
    std::map<std::string, std::string, std::less<>> m_precisions; // of types
    std::map<std::string, std::string, std::less<>> m_structs;    // their members, by name
    ShaderInterface m_found;
};

} // namespace

std::optional<ShaderInterface> declaredInterface(std::string_view source, GLenum stage, std::string_view direction) {
    for (const std::string_view directive : {"#if", "#define", "# if", "# define"})
        if (source.find(directive) != std::string_view::npos) return std::nullopt;
    const Tokens tokens = tokensOf(source);
    return Parser(tokens, stage, direction).read();
}
