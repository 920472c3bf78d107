// Renderbuffers whose storage is that of an EGL image: each is a texture on the host.
#pragma once

#include "common/shared_map.h"

class EsContext;

// The renderbuffers of a share group. Any thread.
struct RenderbufferImages {
    SharedMap<GLuint> textures;      // by the renderbuffer, all by the host's names
    SharedMap<GLuint> renderbuffers; // the inverse
};

// The texture replaces the renderbuffer, or the texture that replaced it before. It is hidden in the table of names,
// and is deleted with the renderbuffer's storage.
void standFor(EsContext &context, GLuint renderbuffer, GLuint texture);
// Called when the renderbuffer gets a storage of its own, or is deleted.
void endStandIn(EsContext &context, GLuint renderbuffer);
// The result of glGetRenderbufferParameteriv for the renderbuffer. False for one that no texture replaces.
bool askStandIn(const EsContext &context, GLuint renderbuffer, GLenum pname, GLint *value);
