// The images of the framebuffers that are bound which are read and drawn to.
#pragma once

#include "framebuffers/attached_images.h"

#include <vector>

// Nothing of the surface, and where nothing is read.
[[nodiscard]] std::optional<AttachedImage> imageRead(const EsContext &context);

// Nothing of the surface.
[[nodiscard]] std::vector<AttachedImage> imagesDrawn(const EsContext &context);
