// The extensions of ES 1 that this library supports, on its own or through the host.
#pragma once

#include "common/es_block.h"
#include "common/host_features.h"

// True for an extension that an ES 1 context on this host may advertise.
[[nodiscard]] bool carriesExtension(const HostFeatures &host, std::string_view name);

// The extensions that a context advertises, separated by blanks: the supported ones of the device, in the device's
// order; all supported ones without a device.
[[nodiscard]] std::string announcedExtensions(const HostFeatures &host, const std::optional<EsBlock> &device);
