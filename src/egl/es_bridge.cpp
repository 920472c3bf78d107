// The road from the state to a back-end library. Which library it is follows from the ES major version alone.
#include "egl/state.h"

namespace egl {

DynamicLibrary State::loadEsLibrary(int32_t major) {
    return openEsLibrary(major == 1 ? es1LibraryName : es2LibraryName, esLibrarySearchPaths());
}

zvEsContext State::createEsContext(const ContextAttribs &attribs, const Display &display, zvEsContext shareEsContext) {
    // The context's own object keeps the library loaded after this one closes it.
    const DynamicLibrary library = loadEsLibrary(attribs.esMajor);
    using CreateEsContext = zvEsContext (*)(const ContextAttribs *, const uint64_t *, void *, zvEsContext);
    const auto create = reinterpret_cast<CreateEsContext>(library.getSymbol("zvCreateEsContext"));
    if (!create) return nullptr;
    const uint64_t displayAndHandle[2] = {reinterpret_cast<uintptr_t>(&display), attribs.contextHandle};
    return create(&attribs, displayAndHandle, &m_settings, shareEsContext);
}

void State::setEsContextAttribs(zvEsContext esContext, const ContextAttribs &attribs) {
    const DynamicLibrary library = loadEsLibrary(attribs.esMajor);
    using SetEsContextAttribs = void (*)(zvEsContext, const ContextAttribs *);
    const auto set = reinterpret_cast<SetEsContextAttribs>(library.getSymbol("zvSetEsContextAttribs"));
    if (set) set(esContext, &attribs);
}

} // namespace egl
