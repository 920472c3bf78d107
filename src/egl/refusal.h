// Explanations of failed calls: the rule that failed, the reason, and a remedy.
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

// The values that a rule's text contains; 0 for those that do not apply.
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

// The last rule that made a call of the calling thread fail; cleared when a call is reported.
extern constinit thread_local Note lastNote __attribute__((tls_model("initial-exec")));

// Notes the rule for the later report and returns the error. Costs a few stores.
[[nodiscard]] inline EGLint because(Rule rule, EGLint error, const Facts &facts = {}) {
    lastNote = {rule, facts};
    return error;
}

// For a version that the device in use does not support.
[[nodiscard]] EGLint becauseOfVersion(EGLint major, EGLint minor, EGLint error);

struct Words {
    const char *rule; // its name
    std::string why;
    std::string help;
};

// Returns and clears the note. error: the call's, used for failures without a note.
[[nodiscard]] Words takeWords(EGLint error);

} // namespace refusals

} // namespace egl
