#include "framebuffers/drawn_formats.h"

#include <algorithm>
#include <iterator>

namespace {

#define RENDERBUFFER(...)
#define NOT_DRAWN(...)

struct Row {
    GLenum internal;
    GLint major;
};
#undef RENDERBUFFER
#define RENDERBUFFER(internal, major) {internal, major},
constexpr Row renderbufferFormats[] = {
#include "framebuffers/drawn_formats.def"
};
#undef RENDERBUFFER
#define RENDERBUFFER(...)

#undef NOT_DRAWN
#define NOT_DRAWN(internal) internal,
constexpr GLenum formatsNotDrawn[] = {
#include "framebuffers/drawn_formats.def"
};
#undef NOT_DRAWN
#undef RENDERBUFFER

} // namespace

bool isRenderbufferFormat(GLenum internal, GLint major) {
    const auto row = std::ranges::find(renderbufferFormats, internal, &Row::internal);
    return row != std::end(renderbufferFormats) && row->major <= major;
}

bool isDrawnFormat(GLenum internal) {
    return std::ranges::find(formatsNotDrawn, internal) == std::end(formatsNotDrawn);
}
