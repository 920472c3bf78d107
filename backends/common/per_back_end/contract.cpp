// What libEGL.so.1 asks of a context that is there; making one is each back end's own.
#include "common/per_back_end/entry_lookup.h"
#include "common/render_mode.h"
#include "context/es_context.h"

void zvSetEsContextAttribs(zvEsContext esContext, const ContextAttribs *attribs) {
    if (esContext && attribs) static_cast<EsContext *>(esContext)->setAttribs(*attribs);
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

Wireframe *currentWireframe() {
    EsContext *const context = EsContext::current();
    return context ? &context->wireframe : nullptr;
}
