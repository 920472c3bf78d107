// A tool that embeds the library: loose contexts, no current profile.
#include <cstdint>

extern "C" __attribute__((visibility("default"))) uint32_t ZelvaneConfiguration;
uint32_t ZelvaneConfiguration = 2 | 4;
