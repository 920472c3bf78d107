// The functions of a back end that libEGL.so.1 calls.
#include "common/current_thread.h"
#include "common/per_back_end/entry_lookup.h"
#include "common/refusal.h"
#include "common/render_mode.h"
#include "context/es_context.h"

#include <memory>
#include <new>
#include <string>

zvEsContext zvCreateEsContext(const ContextAttribs *attribs, const uint64_t[2], void *settings, zvEsContext share) {
    noteCurrentThread();
    if (!attribs) return nullptr;
    try {
        if (const std::string reason = reasonToRefuse(*attribs); !reason.empty()) {
            reportRefusal("no OpenGL ES " + std::to_string(attribs->esMajor) + " context: " + reason);
            return nullptr;
        }
        auto context = std::make_unique<EsContext>(*attribs, settings, share);
        lookForGui(context->renderMode);
        return context.release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

void zvSetEsContextAttribs(zvEsContext esContext, const ContextAttribs *attribs) {
    noteCurrentThread();
    if (!esContext || !attribs) return;
    EsContext &context = *static_cast<EsContext *>(esContext);
    lookForGui(context.renderMode);
    context.setAttribs(*attribs);
}

void zvDeleteEsContext(zvEsContext esContext) {
    delete static_cast<EsContext *>(esContext);
}

void *zvGetExtProcAddress(const char *name) {
    return name ? lookUpEntry(name) : nullptr;
}

void zvSetRenderMode(const uint8_t *mode, size_t length) {
    if (mode && length > 0) setRenderMode(*mode);
}

RenderMode *currentRenderMode() {
    EsContext *const context = EsContext::current();
    return context ? &context->renderMode : nullptr;
}
