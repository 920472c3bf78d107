// The reasons of a choice of configs as JSON, with EGL's own names.
#pragma once

#include "journal/journal.h"
#include "profiles/choice_account.h"

namespace journal {

// An object of attribute and value for each pair; empty for a null list.
[[nodiscard]] Json attributesJson(const int32_t *attributes);
// "fallenOut", "order" and "comparisons", as docs/journal.md tells them.
[[nodiscard]] Json choiceJson(const egl::ChoiceAccount &account);

} // namespace journal
