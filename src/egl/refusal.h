// Refused calls in words: which rule refused, why, and what would help.
#pragma once

#include <string>

#include "egl/egl_api.h"

namespace egl {

namespace refusals {

enum class Rule {
#define REFUSAL_RULE(rule, why, help) rule,
#define ERROR_RULE(error, rule)
#include "egl/data/refusal_rules.def"
#undef ERROR_RULE
#undef REFUSAL_RULE
};

// What the words of a rule are about, as far as it says.
struct Facts {
    EGLint attribute = 0;
    EGLint value = 0;
    EGLint major = 0;
    EGLint minor = 0;
    EGLint config = 0;
};

struct Note {
    Rule rule = Rule::none;
    Facts facts;
};

// Of the calling thread: the last rule that refused, until a call is told of.
extern constinit thread_local Note lastNote __attribute__((tls_model("initial-exec")));

// Gives the error back, for the place that refuses; whoever tells of the call finds the rule. Costs a few stores.
[[nodiscard]] inline EGLint because(Rule rule, EGLint error, const Facts &facts = {}) {
    lastNote = {rule, facts};
    return error;
}

// For a version that the device in force does not carry.
[[nodiscard]] EGLint becauseOfVersion(EGLint major, EGLint minor, EGLint error);

struct Words {
    const char *rule; // its name
    std::string why;
    std::string help;
};

// Takes the note. error: the call's, for refusals without a note.
[[nodiscard]] Words takeWords(EGLint error);

} // namespace refusals

} // namespace egl
