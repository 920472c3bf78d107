// The image rules of the EGL standard, which apply to desktop clients in place of a device's: an image has a storage of
// its own, which the back end creates and which outlives its source.
#pragma once

#include <memory>

#include "egl/egl_api.h"
#include "egl/standard/locked_table.h"
#include "zelvane/back_end.h"

namespace egl {
class Context;
class Display;
struct ContextGroup;
} // namespace egl

namespace egl::standard {

// Constant after construction.
struct Image {
    Image(const Context &maker, const zvImage &storage);
    Image(const Image &) = delete;
    Image &operator=(const Image &) = delete;
    ~Image();

    const zvImage storage;
    const std::shared_ptr<ContextGroup> group; // of the contexts that can use the image's storage
    decltype(&zvDropImage) const drop;         // the back end stays in the process from the first image on
};

using Images = LockedTable<Image>;

// eglCreateImage, on an initialised display.
[[nodiscard]] EGLImage createImage(Display &display, EGLContext context, EGLenum target, EGLClientBuffer buffer,
                                   const EGLAttrib *attributes);

} // namespace egl::standard
