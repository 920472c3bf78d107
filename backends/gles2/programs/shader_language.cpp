#include "programs/shader_language.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>

namespace {

constexpr std::string_view blanks = " \t\v\f\r\n";
constexpr std::string_view externalSampler = "samplerExternalOES";
constexpr std::string_view externalExtension = "GL_OES_EGL_image_external";

void skip(std::string_view &text, std::string_view characters) {
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

// The text after blanks and comments.
std::string_view firstToken(std::string_view source) {
    for (;;) {
        skip(source, blanks);
        const std::string_view end = source.starts_with("//") ? "\n" : "*/";
        if (!source.starts_with("//") && !source.starts_with("/*")) return source;
        const size_t close = source.find(end, 2);
        if (close == std::string_view::npos) return {};
        source.remove_prefix(close + end.size());
    }
}

// The rest of the #version line; nothing if there is none.
std::optional<std::string_view> versionLine(std::string_view source) {
    constexpr std::string_view word = "version";
    source = firstToken(source);
    if (!source.starts_with('#')) return std::nullopt;
    source.remove_prefix(1);
    skip(source, " \t");
    if (!source.starts_with(word)) return std::nullopt;
    source.remove_prefix(word.size());
    skip(source, " \t");
    return source.substr(0, source.find('\n'));
}

bool hasVersion(std::string_view line, GLint major, GLint minor) {
    int version = 0;
    const char *const end = std::from_chars(line.data(), line.data() + line.size(), version).ptr;
    line.remove_prefix(static_cast<size_t>(end - line.data()));
    skip(line, " \t");
    if (version == 100) return true;
    return line.starts_with("es") && version >= 300 && version <= major * 100 + minor * 10;
}

bool isOfWord(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) || character == '_';
}

// Removes the directive, since the host may not know the extension.
void removeExtension(std::string &source, std::string_view extension) {
    constexpr std::string_view directive = "#extension";
    for (size_t at = source.find(directive); at != std::string::npos; at = source.find(directive, at + 1)) {
        const size_t end = std::min(source.find('\n', at), source.size());
        if (std::string_view(source).substr(at, end - at).find(extension) == std::string_view::npos) continue;
        source.erase(at, end - at);
    }
}

} // namespace

void replaceWords(std::string &source, std::string_view word, std::string_view replacement) {
    for (size_t at = source.find(word); at != std::string::npos; at = source.find(word, at + 1)) {
        const size_t end = at + word.size();
        const bool isWhole = (at == 0 || !isOfWord(source[at - 1])) && (end == source.size() || !isOfWord(source[end]));
        if (isWhole) source.replace(at, word.size(), replacement);
    }
}

std::string hostShaderSource(std::string_view source, GLint major, GLint minor) {
    const auto line = versionLine(source);
    if (line && !hasVersion(*line, major, minor)) {
        return "#version 100\n#error this context has no version " + std::string(*line) + '\n';
    }
    std::string result(source);
    if (source.find(externalExtension) != std::string_view::npos) {
        removeExtension(result, externalExtension);
        replaceWords(result, externalSampler, "sampler2D");
    }
    return line ? result : "#version 100\n#line 1\n" + result;
}
