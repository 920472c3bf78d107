// One context of this back end: a part for each folder, with the state that ES 1 has and the host's context lacks.
// Created and changed on the thread that has the host context current; used there.
#pragma once

#include "announcement/announcement.h"
#include "common/back_end_context.h"
#include "common/current_thread.h"
#include "common/share_group_member.h"
#include "context/share_group.h"
#include "fixed_function/matrix_palette.h"
#include "vertices/vertices.h"

#include <zelvane/back_end.h>

#include <new>
#include <stdexcept>

class EsContext : public BackEndContext {
public:
    // Sets the host context to the initial state that ES defines. settings and share may be null; a share context of
    // another back end counts as none.
    EsContext(const ContextAttribs &attribs, const void *settings, const void *share);
    EsContext(const EsContext &) = delete;
    EsContext &operator=(const EsContext &) = delete;

    // The calling thread's context, or null: without a context, or when it is another back end's.
    [[nodiscard]] static EsContext *current() { return static_cast<EsContext *>(currentThread->es1Context); }

    // Called when the surface may have another colour space than at the last bind.
    void setAttribs(const ContextAttribs &attribs);

    // Constant after construction.
    const Announcement announced;
    const ShareGroupMember<ShareGroup> shared;

    Vertices vertices;
    MatrixPalette palette;
    TextureCrop cropOfTextureZero = {}; // of texture 0, which contexts do not share
};

// Raises an error in the current context, if there is one.
void raise(GLenum error);

// Runs code that may run out of memory. No exception may reach the application.
template <typename Work>
void reportingMemory(EsContext &context, Work work) {
    try {
        work();
    } catch (const std::bad_alloc &) {
        context.raise(GL_OUT_OF_MEMORY);
    } catch (const std::length_error &) {
        context.raise(GL_OUT_OF_MEMORY);
    }
}
