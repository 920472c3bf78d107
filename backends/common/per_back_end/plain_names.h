// The functions behind the exported plain names.
#pragma once

// As resolveExport; with a journal, a function of libEGL's that records the calls and goes on to that one. name ends in
// a 0.
[[nodiscard]] void *resolvePlainName(const char *name);
