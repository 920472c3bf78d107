// The reasons of a config choice as JSON, with EGL's own names.
#pragma once

#include "journal/journal.h"
#include "profiles/choice_account.h"

namespace journal {

// An object of attributes and values; empty for a null list.
[[nodiscard]] Json attributesJson(const int32_t *attributes);
// "fallenOut", "order" and "comparisons", as docs/journal.md describes them.
[[nodiscard]] Json choiceJson(const egl::ChoiceAccount &account);

} // namespace journal
