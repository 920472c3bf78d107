// The functions behind the exported plain names.
#pragma once

// As resolveExport; with a journal, a function of libEGL's that records the calls and calls that one. name is
// zero-terminated.
[[nodiscard]] void *resolvePlainName(const char *name);
