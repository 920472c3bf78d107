#include "tools/report/formats.h"

namespace tools {

using namespace capability;

namespace {

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') result += '\\';
        result += character == '\n' ? std::string("\\n") : std::string(1, character);
    }
    return result + "\"";
}

// The items, each made by the function, between the brackets.
template <typename Items, typename Make>
std::string listed(const char *brackets, const Items &items, Make make) {
    std::string text(1, brackets[0]);
    for (const auto &item : items)
        text += (text.size() > 1 ? ", " : "") + make(item);
    return text + brackets[1];
}

std::string esVersion(EsVersion version) {
    return version ? quoted(esVersionName(version)) : "null";
}

std::string extensionNames(const SystemReport &report) {
    std::vector<HostExtension> present;
    for (const auto &[extension, isPresent] : report.extensions) {
        if (isPresent) present.push_back(extension);
    }
    return listed("[]", present, [](HostExtension id) { return quoted(hostExtensionName(id)); });
}

} // namespace

std::string reportAsJson(const SystemReport &report, const VersionAnswers &answers, bool withExtensions) {
    std::string text = "{\n  \"openGL\": " + quoted(glVersionName(report.glVersion)) + ",\n  \"features\": ";
    text += listed("{}", report.features, [](const auto &entry) {
        return quoted(entry.first) + ": " + (entry.second->available ? "true" : "false");
    });
    // A version that is refused is null.
    text += ",\n  \"requests\": " + listed("[]", answers.versions, [](const VersionAnswer &answer) {
                return "{\"requested\": " + esVersion(answer.requested) + ", \"loose\": " + esVersion(answer.loose) +
                       ", \"strict\": " + esVersion(answer.strict) + "}";
            });
    text += ",\n  \"heldBack\": " + listed("[]", answers.heldBack, [](const auto &entry) {
                return "{\"feature\": " + quoted(descriptorOf(entry.first).name) +
                       ", \"versions\": " + listed("[]", entry.second, esVersion) +
                       ", \"reason\": " + quoted(failureOf(entry.first)) + "}";
            });
    if (withExtensions) text += ",\n  \"extensions\": " + extensionNames(report);
    return text + "\n}\n";
}

} // namespace tools
