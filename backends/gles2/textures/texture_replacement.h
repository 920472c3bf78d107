// Replaces the host object of an application's texture: ES allows a new storage for a texture in cases where the
// host does not.
#pragma once

#include "common/per_back_end/texture_contents.h"

class EsContext;

// Maps the name of the texture that is bound to the target, and the attachments in this context, to another host
// texture of the same target, with the parameters of the old one, which is deleted. Other contexts use it once they
// bind or attach the name again.
// target: not a cube face. fresh: hidden in the table of names until now.
void replaceBoundTexture(EsContext &context, GLenum target, GLuint fresh);

// Called before an image of this level is specified for the texture that is bound to the target. A sibling of an EGL
// image first gets a storage of its own, with its other levels. Raises GL_OUT_OF_MEMORY as ES does.
void leaveImage(EsContext &context, GLenum target, GLint level);
