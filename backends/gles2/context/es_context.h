// One context of this back end: a part for each folder, with the state that ES has and the host's context lacks.
// Created and changed on the thread that has the host context current; used there.
#pragma once

#include "announcement/announcement.h"
#include "common/back_end_context.h"
#include "common/current_thread.h"
#include "common/share_group_member.h"
#include "context/share_group.h"
#include "framebuffers/framebuffers.h"
#include "programs/programs.h"
#include "textures/textures.h"
#include "vertices/vertices.h"

#include <zelvane/back_end.h>

class EsContext : public BackEndContext {
public:
    // Sets the host context to the initial state that ES defines.
    // settings: for the zvSettings functions. share: a context to share objects with, or null.
    EsContext(const ContextAttribs &attribs, const void *settings, zvEsContext share);
    ~EsContext();
    EsContext(const EsContext &) = delete;
    EsContext &operator=(const EsContext &) = delete;

    // The calling thread's context, or null: without a context, or when it is another back end's.
    [[nodiscard]] static EsContext *current() { return static_cast<EsContext *>(currentThread->esContext); }

    // Called at every bind.
    void setAttribs(const ContextAttribs &attribs);

    // Constant after construction.
    const GLint major;
    const GLint minor;
    const GLuint robustAccess;  // 1 when the application requested it
    const bool noError;         // the application requested a context without errors
    const GLenum resetStrategy; // as glGetIntegerv returns it
    const std::shared_ptr<const Announcement> announcement;
    const Announcement &announced = *announcement;
    const ShareGroupMember<ShareGroup> shared;

    Vertices vertices;
    Programs programs;
    Textures textures;
    Framebuffers framebuffers;
};
