// One context of this back end: what ES has and the host's context does not. Made and changed on the thread that has
// the host context current; used there.
#pragma once

#include "common/host_features.h"
#include "render_mode.h"

#include <GLES3/gl32.h>
#include <zelvane/back_end.h>

#include <string>
#include <vector>

class EsContext {
public:
    // Sets the host context up so that an application finds the state that ES promises.
    explicit EsContext(const ContextAttribs &attribs);
    ~EsContext();
    EsContext(const EsContext &) = delete;
    EsContext &operator=(const EsContext &) = delete;

    // The calling thread's, or null: without a context, or when the context is another back end's.
    [[nodiscard]] static EsContext *current();

    // The surface may have another colour space than at the last bind.
    void setAttribs(const ContextAttribs &attribs);

    // Constant after construction.
    const GLint major;
    const GLint minor;
    const HostFeatures host;
    const std::string version;
    const std::string shadingLanguageVersion;
    const std::vector<std::string> extensionNames;
    const std::string extensions; // with a blank between
    // Stands for object 0, which a core context lacks. The host's name.
    GLuint defaultVertexArray = 0;
    // The host compiles the shading language of ES.
    const bool hasEsShaders;

    Wireframe wireframe;
};
