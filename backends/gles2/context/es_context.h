// One context of this back end: what ES has and the host's context does not. Made and changed on the thread that has
// the host context current; used there.
#pragma once

#include "announcement/announcement.h"
#include "common/back_end_context.h"
#include "context/share_group.h"
#include "vertices/stream_buffer.h"
#include "vertices/vertex_array_state.h"

#include "es_gl.h"
#include <zelvane/back_end.h>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class EsContext : public BackEndContext {
public:
    // Sets the host context up so that an application finds the state that ES promises.
    // settings: for the zvSettings functions. share: a context to share objects with, or null.
    EsContext(const ContextAttribs &attribs, const void *settings, zvEsContext share);
    ~EsContext();
    EsContext(const EsContext &) = delete;
    EsContext &operator=(const EsContext &) = delete;

    // The calling thread's, or null: without a context, or when the context is another back end's.
    [[nodiscard]] static EsContext *current();

    // The surface may have another colour space than at the last bind.
    void setAttribs(const ContextAttribs &attribs);

    // What is drawn to: the host's name of a framebuffer, 0 for the surface. A framebuffer of the application's always
    // takes sRGB values where its image has such a format; a surface only where it has that colour space.
    void setDrawFramebuffer(GLuint framebuffer);

    // Object 0 takes arrays and index lists in the application's memory. So do the objects of
    // OES_vertex_array_object; those of ES 3 do not.
    [[nodiscard]] bool takesClientMemory() const { return major < 3 || vertexArray == &vertexArrayZero; }

    // Constant after construction.
    const GLint major;
    const GLint minor;
    const Announcement announced;
    // Stands for object 0, which a core context lacks. The host's name.
    GLuint defaultVertexArray = 0;
    const std::shared_ptr<ShareGroup> shared;
    GLuint maxVertexAttribs = 0;

    GLenum generateMipmapHint = GL_DONT_CARE;
    GLuint arrayBuffer = 0; // the host's name
    VertexArrayState vertexArrayZero;
    std::unordered_map<GLuint, VertexArrayState> vertexArrays; // the others
    VertexArrayState *vertexArray = &vertexArrayZero;          // what is bound
    NameTable framebuffers;
    std::unordered_map<GLuint, GLuint> lastTextureNames; // by the host's: what it was bound as, where the names differ
    GLuint drawFramebuffer = 0;                          // the host's name
    bool isSurfaceSrgb = false;
    bool writesSrgb = false;        // what the host has been told
    TextureSwizzles swizzlesOfZero; // of the textures of name 0
    StreamBuffer vertexStream{GL_ARRAY_BUFFER};
    StreamBuffer indexStream{GL_ELEMENT_ARRAY_BUFFER};
    std::vector<std::byte> readBackIndices; // keeps its memory from draw to draw
};
