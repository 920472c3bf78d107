// Textures that another host object replaces: siblings of EGL images, since the host can only give their storage to a
// new object. Every other texture has the application's name on the host.
#pragma once

#include "common/per_back_end/texture_contents.h"
#include "common/shared_map.h"

class EsContext;

// The replaced textures of a share group. Any thread.
class StandIns {
public:
    [[nodiscard]] GLuint hostName(GLuint name) const { return m_hostNames.find(name).value_or(name); }
    [[nodiscard]] GLuint nameOf(GLuint hostName) const { return m_names.find(hostName).value_or(hostName); }
    void set(GLuint name, GLuint hostName);
    // Removes the texture. Returns the object that replaced it, or 0.
    GLuint remove(GLuint name);

private:
    SharedMap<GLuint> m_hostNames; // by the application's
    SharedMap<GLuint> m_names;     // by the host's
};

// The host's name of the texture that is bound to the active unit.
[[nodiscard]] GLuint boundHostTexture(GLenum target);

// Replaces the host object of the texture that is bound to the target by another one, with the parameters of the old
// one. Bindings in this context are updated; other contexts use it once they bind or attach the name again.
void replaceBoundTexture(EsContext &context, GLenum target, GLuint fresh);

// Called before an image of this target and level is specified for the bound texture. A sibling of an EGL image first
// gets a storage of its own, with its other levels.
void leaveImage(GLenum target, GLint level);
