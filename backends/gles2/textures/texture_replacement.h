// Another object of the host for a texture of the application's: ES gives a texture another storage in places where the
// host cannot.
#pragma once

#include "es_gl.h"

class EsContext;

// The application's name of the texture that is bound to the target, and its framebuffers in this context, mean another
// host texture from now on, of the same target, with the parameters of the old one, which is deleted. Other contexts
// see it once they bind or attach the name again.
// target: of a whole texture. fresh: hidden in the table of names until now.
void replaceBoundTexture(EsContext &context, GLenum target, GLuint fresh);

// In place of the level that gets a new image: none does, and all are kept.
constexpr GLint allLevels = -1;

// The texture that is bound to the target is about to get an image of this level. A sibling of an EGL image gets a
// storage of its own first; what else it holds stays. Runs out of memory with the error of ES.
void leaveImage(EsContext &context, GLenum target, GLint level);
