// Renderbuffers whose storage is that of an EGL image: on the host a texture stands for each.
#pragma once

#include "common/shared_map.h"

class EsContext;

// Those of a share group. Any thread.
struct RenderbufferImages {
    SharedMap<GLuint> textures;      // by the renderbuffer, all by the host's names
    SharedMap<GLuint> renderbuffers; // the other way round
};

// The texture takes the place of the renderbuffer, or of the texture that stood for it. It is hidden in the table of
// names, and goes with the renderbuffer's storage.
void standFor(EsContext &context, GLuint renderbuffer, GLuint texture);
// The renderbuffer gets a storage of its own, or goes.
void endStandIn(EsContext &context, GLuint renderbuffer);
// What glGetRenderbufferParameteriv is to tell of the renderbuffer. False for one that stands for itself.
bool askStandIn(const EsContext &context, GLuint renderbuffer, GLenum pname, GLint *value);
