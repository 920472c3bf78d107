// The five functions that libEGL.so.1 asks of a back end.
#include "entry_lookup.h"
#include "es_context.h"
#include "host_gl.h"
#include "render_mode.h"

#include <memory>
#include <new>

zvEsContext zvCreateEsContext(const ContextAttribs *attribs, const uint64_t[2], void *settings, zvEsContext share) {
    if (!attribs || !findHostGl()) return nullptr;
    try {
        return std::make_unique<EsContext>(*attribs, settings, share).release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

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
