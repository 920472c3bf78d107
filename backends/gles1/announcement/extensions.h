// The extensions of ES 1 that this library carries, on its own or by what the host has.
#pragma once

#include "common/es_block.h"
#include "common/host_features.h"

// True for an extension that an ES 1 context on this host may announce.
[[nodiscard]] bool carriesExtension(const HostFeatures &host, std::string_view name);

// What a context announces, with a blank between: of the device's extensions those that are carried, in the device's
// order; all that are carried without a device.
[[nodiscard]] std::string announcedExtensions(const HostFeatures &host, const std::optional<EsBlock> &device);
