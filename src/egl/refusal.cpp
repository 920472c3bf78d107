#include "egl/refusal.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

#include "egl/state.h"
#include "profiles/egl_names.h"

namespace egl::refusals {

constinit thread_local Note lastNote;

namespace {

struct RuleText {
    const char *name;
    const char *why;
    const char *help;
};

constexpr RuleText ruleTexts[] = {
#define REFUSAL_RULE(rule, why, help) {#rule, why, help},
#define ERROR_RULE(error, rule)
#include "egl/data/refusal_rules.def"
#undef ERROR_RULE
#undef REFUSAL_RULE
};

constexpr std::pair<EGLint, Rule> errorRules[] = {
#define REFUSAL_RULE(rule, why, help)
#define ERROR_RULE(error, rule) {error, Rule::rule},
#include "egl/data/refusal_rules.def"
#undef ERROR_RULE
#undef REFUSAL_RULE
};

Rule ruleOfError(EGLint error) {
    const auto *found = std::ranges::find(errorRules, error, &std::pair<EGLint, Rule>::first);
    return found == std::end(errorRules) ? Rule::none : found->second;
}

std::string highestVersion(const DeviceProfile &profile) {
    if (const auto minor = highestEs3Minor(profile)) return "3." + std::to_string(*minor);
    return isEsVersionAllowed(profile, 2, 0) ? "2.0" : "1.1";
}

// The option with more capabilities that is nearest to a device.
const char *widerOption(const DeviceProfile &profile) {
    return profile.name == "Desktop" ? "--bare" : "--profile Desktop";
}

std::string versionText(const Facts &facts) {
    // Minor version 0 is omitted for ES 1: its back end implements all minor versions.
    return std::to_string(facts.major) + (facts.minor > 0 || facts.major > 1 ? '.' + std::to_string(facts.minor) : "");
}

void replaceAll(std::string &text, std::string_view word, const std::string &by) {
    for (size_t at = 0; (at = text.find(word, at)) != std::string::npos; at += by.size())
        text.replace(at, word.size(), by);
}

std::string filled(const char *pattern, const Facts &facts) {
    std::string text = pattern;
    if (text.find('{') == std::string::npos) return text;
    const DeviceProfile &profile = state().profile();
    const std::array<std::pair<std::string_view, std::string>, 7> words = {{
        {"{attribute}", attributeName(facts.attribute)},
        {"{value}", valueText(facts.attribute, facts.value)},
        {"{version}", versionText(facts)},
        {"{device}", profile.name},
        {"{highest}", highestVersion(profile)},
        {"{other}", widerOption(profile)},
        {"{config}", std::to_string(facts.config)},
    }};
    for (const auto &[word, by] : words)
        replaceAll(text, word, by);
    return text;
}

} // namespace

EGLint becauseOfVersion(EGLint major, EGLint minor, EGLint error) {
    const Facts facts{.major = major, .minor = minor};
    if (!isEsVersionAllowed(defaultProfile, major, minor)) return because(Rule::versionThatNeverWas, error, facts);
    const bool isBeyond = versionText(facts) > highestVersion(state().profile());
    return because(isBeyond ? Rule::versionBeyondDevice : Rule::versionNotOfDevice, error, facts);
}

Words takeWords(EGLint error) {
    const Note note = std::exchange(lastNote, {});
    const Rule rule = note.rule == Rule::none ? ruleOfError(error) : note.rule;
    const RuleText &text = ruleTexts[static_cast<size_t>(rule)];
    return {text.name, filled(text.why, note.facts), filled(text.help, note.facts)};
}

} // namespace egl::refusals
