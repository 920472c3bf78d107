#include "tools/info/asked_context.h"

#include <array>

#include "foundation/gl_types.h"
#include "journal/device_view.h"
#include "tools/command/es_limits.h"

namespace {

struct Queries {
    explicit Queries(const gl::FunctionTable &table)
        : getString(reinterpret_cast<decltype(getString)>(table.ask(table.context, "glGetString"))),
          getIntegerv(reinterpret_cast<decltype(getIntegerv)>(table.ask(table.context, "glGetIntegerv"))),
          getFloatv(reinterpret_cast<decltype(getFloatv)>(table.ask(table.context, "glGetFloatv"))),
          getInteger64v(reinterpret_cast<decltype(getInteger64v)>(table.ask(table.context, "glGetInteger64v"))),
          getIntegeri(reinterpret_cast<decltype(getIntegeri)>(table.ask(table.context, "glGetIntegeri_v"))) {}

    const unsigned char *(*getString)(uint32_t);
    void (*getIntegerv)(uint32_t, int32_t *);
    void (*getFloatv)(uint32_t, float *);
    void (*getInteger64v)(uint32_t, int64_t *);
    void (*getIntegeri)(uint32_t, uint32_t, int32_t *);
};

// Null for a limit that the context does not report.
Json valueOf(const EsLimit &limit, const Queries &queries, const journal::DeviceView &view) {
    const uint32_t name = enumerantOf(limit).value;
    std::array<int32_t, 4> integers{};
    std::array<float, 4> reals{};
    std::array<int64_t, 4> wide{};
    const bool isWide = limit.kind == EsLimit::wide && view.carries({false, 30, ""});
    switch (limit.kind) {
    case EsLimit::real:
        queries.getFloatv(name, reals.data());
        break;
    case EsLimit::indexed:
        for (uint32_t index = 0; index < limit.count; ++index)
            queries.getIntegeri(name, index, &integers[index]);
        break;
    default:
        isWide ? queries.getInteger64v(name, wide.data()) : queries.getIntegerv(name, integers.data());
    }
    if (view.takeError() != 0) return nullptr;
    Json list = Json::array();
    for (size_t index = 0; index < limit.count; ++index)
        list.push_back(limit.kind == EsLimit::real ? Json(reals[index]) : Json(isWide ? wide[index] : integers[index]));
    return limit.count == 1 ? list[0] : list;
}

} // namespace

Json askContext(const LoadedEgl &egl) {
    static decltype(&eglGetProcAddress) getProcAddress;
    getProcAddress = egl.getProcAddress;
    const auto ask = [](void *, const char *name) { return reinterpret_cast<gl::Function>(getProcAddress(name)); };
    const gl::FunctionTable table{nullptr, ask, {}};
    journal::DeviceView view(table);
    const Queries queries(table);
    Json json = view.words();
    const auto *language = queries.getString(GL_SHADING_LANGUAGE_VERSION);
    (void)view.takeError(); // ES 1 lacks the query
    json["shadingLanguageVersion"] = language ? Json(reinterpret_cast<const char *>(language)) : Json(nullptr);
    json["compressedTextureFormats"] = jsonList(
        view.compressedFormats(), [](int32_t format) { return journal::enumerantName(static_cast<uint32_t>(format)); });
    Json &limits = json["limits"] = Json::object();
    for (const EsLimit &limit : esLimits()) {
        if (!view.carries(enumerantOf(limit).origin)) continue;
        const Json value = valueOf(limit, queries, view);
        if (!value.is_null()) limits[limit.name] = value;
    }
    return json;
}
