// Loads and calls back-end libraries for the state. The ES major version alone decides which library is used.
#include <atomic>

#include "egl/es_library.h"
#include "egl/state.h"
#include "foundation/log.h"

namespace egl {

EsLibrary::EsLibrary(DynamicLibrary opened)
    : library(std::move(opened)), createEsContext(find<decltype(createEsContext)>("zvCreateEsContext")),
      setEsContextAttribs(find<decltype(setEsContextAttribs)>("zvSetEsContextAttribs")),
      deleteEsContext(find<decltype(deleteEsContext)>("zvDeleteEsContext")),
      getExtProcAddress(find<decltype(getExtProcAddress)>("zvGetExtProcAddress")),
      setRenderMode(find<decltype(setRenderMode)>("zvSetRenderMode")),
      makeImage(find<decltype(makeImage)>("zvMakeImage")), dropImage(find<decltype(dropImage)>("zvDropImage")) {}

DynamicLibrary State::loadEsLibrary(int32_t major) {
    return openEsLibrary(major == 1 ? es1LibraryName : es2LibraryName, esLibrarySearchPaths());
}

zvEsContext State::createEsContext(const EsLibrary &library, const ContextAttribs &attribs, const Display &display,
                                   zvEsContext shareEsContext) {
    if (!library.createEsContext) {
        static std::atomic<bool> isTold = false;
        if (!isTold.exchange(true))
            logMessage(LogError, "%s", failureText("find zvCreateEsContext in", library.library.name()).c_str());
        return nullptr;
    }
    const uint64_t displayAndHandle[2] = {reinterpret_cast<uintptr_t>(&display), attribs.contextHandle};
    return library.createEsContext(&attribs, displayAndHandle, &m_settings, shareEsContext);
}

void State::setEsContextAttribs(const EsLibrary &library, zvEsContext esContext, const ContextAttribs &attribs) {
    if (library.setEsContextAttribs) library.setEsContextAttribs(esContext, &attribs);
}

} // namespace egl
