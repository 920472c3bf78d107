// The symbol ZelvaneConfiguration that a tool which embeds the library may export.
#pragma once

#include <cstdint>

enum HostConfigurationBit : uint32_t {
    CONFIG_FORCE_LOOSE_CONTEXTS = 2,
    CONFIG_IGNORE_CURRENT_PROFILE = 4,
    CONFIG_NO_WINDOW_TITLE = 8,
};

// 0 when the process exports no such symbol. Looked up once; safe for concurrent first calls.
[[nodiscard]] uint32_t getHostConfiguration();
