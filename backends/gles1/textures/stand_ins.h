// Textures for which another object of the host stands: siblings of EGL images, whose storage the host can give to a
// new object alone. Every other texture has the application's name on the host.
#pragma once

#include "common/shared_map.h"

class EsContext;

// Those of a share group. Any thread.
class StandIns {
public:
    [[nodiscard]] GLuint hostName(GLuint name) const { return m_hostNames.find(name).value_or(name); }
    [[nodiscard]] GLuint nameOf(GLuint hostName) const { return m_names.find(hostName).value_or(hostName); }
    void set(GLuint name, GLuint hostName);
    // The texture goes. Gives the object that stood for it, or 0.
    GLuint remove(GLuint name);

private:
    SharedMap<GLuint> m_hostNames; // by the application's
    SharedMap<GLuint> m_names;     // by the host's
};

// The host's name of the texture that is bound to the active unit.
[[nodiscard]] GLuint boundHostTexture(GLenum target);

// The texture that is bound to the target is another object of the host's from now on, with the parameters of the old
// one. What is bound in this context follows; others see it once they bind or attach the name again.
void replaceBoundTexture(EsContext &context, GLenum target, GLuint fresh);

// In place of the level that gets a new image: none does, and all are kept.
constexpr GLint allLevels = -1;

// The texture that is bound is about to get an image of this target and level. A sibling of an EGL image gets a storage
// of its own first; what else it holds stays.
void leaveImage(GLenum target, GLint level);
