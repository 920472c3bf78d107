#include "tools/report/formats.h"

#include <string_view>

#include "capability/feature_texts.h"
#include "capability/format_system_report.h"
#include "foundation/product.h"

namespace tools {

using namespace capability;

namespace {

std::string identityText(const HostIdentity &host) {
    const auto orUnknown = [](const std::string &text) { return text.empty() ? std::string("unknown") : text; };
    return std::string(productName) + ' ' + productVersion + " (SDK " + productBuild +
           ")\nHost vendor: " + orUnknown(host.vendor) + "\nHost renderer: " + orUnknown(host.renderer) +
           "\nHost version: " + orUnknown(host.version) + "\n\n";
}

std::string versionLine(const VersionAnswer &answer) {
    std::string line = std::string("OpenGL ES ") + esVersionName(answer.requested) + " request: ";
    line += std::string("OpenGL ES ") + esVersionName(answer.loose) + " in loose mode, ";
    return line + (answer.strict ? std::string("OpenGL ES ") + esVersionName(answer.strict) : "refused") +
           " in strict mode\n";
}

std::string indented(const std::string &text) {
    std::string lines = "\t";
    for (const char character : text)
        lines += character == '\n' ? std::string("\n\t") : std::string(1, character);
    return lines + "\n";
}

} // namespace

std::string failureOf(Feature feature) {
    const auto &descriptor = descriptorOf(feature);
    const auto &alternatives = descriptor.alternatives;
    std::string text = describeFeatureFailure(descriptor, alternatives.size() == 1 ? alternatives[0].variant : 0);
    // The text after the last separator is empty.
    constexpr std::string_view separator = "\nOR\n";
    if (text.ends_with(separator)) text.resize(text.size() - separator.size());
    return text;
}

std::string reportAsText(const HostIdentity &host, const SystemReport &report, const VersionAnswers &answers,
                         bool withExtensions) {
    std::string text = identityText(host) + formatSystemReport(report, withExtensions) + "\n";
    for (const auto &answer : answers.versions)
        text += versionLine(answer);
    for (const auto &[feature, versions] : answers.heldBack) {
        text += "\nHeld back in strict mode: OpenGL ES";
        for (const auto version : versions)
            text += std::string(version == versions.front() ? " " : ", ") + esVersionName(version);
        text += "\n" + indented(failureOf(feature));
    }
    return text;
}

} // namespace tools
