// The read and draw images of the bound framebuffers.
#pragma once

#include "framebuffers/attached_images.h"

#include <vector>

// Nothing for the surface, and without a read buffer.
[[nodiscard]] std::optional<AttachedImage> imageRead(const EsContext &context);

// Nothing for the surface.
[[nodiscard]] std::vector<AttachedImage> imagesDrawn(const EsContext &context);
