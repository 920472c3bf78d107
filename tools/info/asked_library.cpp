#include "tools/info/asked_library.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

#include "journal/choice_json.h"
#include "profiles/egl_names.h"
#include "tools/info/asked_context.h"
#include "tools/info/loaded_egl.h"

namespace {

struct Request {
    const char *name;
    EGLint major, minor, bit;
};

constexpr Request requests[] = {{"1.1", 1, 1, EGL_OPENGL_ES_BIT},
                                {"2.0", 2, 0, EGL_OPENGL_ES2_BIT},
                                {"3.0", 3, 0, EGL_OPENGL_ES3_BIT},
                                {"3.1", 3, 1, EGL_OPENGL_ES3_BIT},
                                {"3.2", 3, 2, EGL_OPENGL_ES3_BIT}};

// The last line of the list of failed calls that the library writes under "zelvane run"; empty without a list.
std::string lastRefusal() {
    const char *path = getenv("ZELVANE_REFUSALS");
    std::ifstream list(path ? path : "");
    std::string process, call, text;
    for (std::string line; std::getline(list, line);) {
        std::istringstream words(line);
        words >> process >> call >> std::ws;
        std::getline(words, text);
    }
    return text;
}

// Discards the library's messages: a failed context creation is a result here.
class SilentErrors {
public:
    SilentErrors() : m_before(dup(STDERR_FILENO)) {
        const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nothing, STDERR_FILENO);
        close(nothing);
    }
    SilentErrors(const SilentErrors &) = delete;
    SilentErrors &operator=(const SilentErrors &) = delete;
    ~SilentErrors() {
        dup2(m_before, STDERR_FILENO);
        close(m_before);
    }

private:
    int m_before;
};

Json words(const char *text) {
    Json list = Json::array();
    std::istringstream stream(text ? text : "");
    for (std::string word; stream >> word;)
        list.push_back(word);
    return list;
}

class AskedDisplay {
public:
    explicit AskedDisplay(const LoadedEgl &egl);

    [[nodiscard]] Json strings() const;
    [[nodiscard]] Json configs() const;
    // The context that a request gets, or "error".
    [[nodiscard]] Json context(const Request &request) const;

private:
    [[nodiscard]] std::string error() const { return egl::errorName(m_egl.getError()); }
    [[nodiscard]] EGLint attribute(EGLConfig config, EGLint name) const;
    // Prefers a config with pbuffers. Null if none matches.
    [[nodiscard]] EGLConfig configFor(const Request &request) const;

    const LoadedEgl &m_egl;
    const EGLDisplay m_display;
    std::vector<EGLConfig> m_configs;
};

AskedDisplay::AskedDisplay(const LoadedEgl &egl) : m_egl(egl), m_display(egl.getDisplay(EGL_DEFAULT_DISPLAY)) {
    if (!m_display) throw std::runtime_error("eglGetDisplay returns no display");
    if (!m_egl.initialize(m_display, nullptr, nullptr)) throw std::runtime_error("eglInitialize fails with " + error());
    EGLint count = 0;
    m_egl.getConfigs(m_display, nullptr, 0, &count);
    m_configs.resize(static_cast<size_t>(std::max(count, 0)));
    m_egl.getConfigs(m_display, m_configs.data(), count, &count);
}

Json AskedDisplay::strings() const {
    const auto text = [this](EGLint name) {
        const char *string = m_egl.queryString(m_display, name);
        return string ? string : "";
    };
    return {{"vendor", text(EGL_VENDOR)},
            {"version", text(EGL_VERSION)},
            {"clientApis", words(text(EGL_CLIENT_APIS))},
            {"extensions", words(text(EGL_EXTENSIONS))}};
}

EGLint AskedDisplay::attribute(EGLConfig config, EGLint name) const {
    EGLint value = 0;
    return m_egl.getConfigAttrib(m_display, config, name, &value) ? value : 0;
}

Json AskedDisplay::configs() const {
    Json list = Json::array();
    for (EGLConfig config : m_configs) {
        std::vector<EGLint> attributes;
        for (const std::string &name : egl::configAttributeNames()) {
            const EGLint attribute = *egl::findConfigAttribute(name);
            EGLint value = 0;
            if (m_egl.getConfigAttrib(m_display, config, attribute, &value))
                attributes.insert(attributes.end(), {attribute, value});
            else
                (void)m_egl.getError();
        }
        attributes.push_back(EGL_NONE);
        list.push_back(journal::attributesJson(attributes.data()));
    }
    return list;
}

EGLConfig AskedDisplay::configFor(const Request &request) const {
    EGLConfig found = nullptr;
    for (EGLConfig config : m_configs) {
        if (!(attribute(config, EGL_RENDERABLE_TYPE) & request.bit)) continue;
        if (attribute(config, EGL_SURFACE_TYPE) & EGL_PBUFFER_BIT) return config;
        if (!found) found = config;
    }
    return found;
}

Json AskedDisplay::context(const Request &request) const {
    EGLConfig config = configFor(request);
    if (!config) return {{"error", "no config supports the version"}};
    const EGLint version[] = {EGL_CONTEXT_MAJOR_VERSION, request.major, EGL_CONTEXT_MINOR_VERSION, request.minor,
                              EGL_NONE};
    EGLContext context = m_egl.createContext(m_display, config, EGL_NO_CONTEXT, version);
    if (!context) {
        const std::string failure = "eglCreateContext fails with " + error(), reason = lastRefusal();
        return {{"error", reason.empty() ? failure : reason}};
    }
    EGLSurface surface = EGL_NO_SURFACE;
    if (attribute(config, EGL_SURFACE_TYPE) & EGL_PBUFFER_BIT) {
        const EGLint size[] = {EGL_WIDTH, 16, EGL_HEIGHT, 16, EGL_NONE};
        surface = m_egl.createPbufferSurface(m_display, config, size);
    }
    Json json;
    if (m_egl.makeCurrent(m_display, surface, surface, context)) {
        json = askContext(m_egl);
        m_egl.makeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    } else {
        json = {{"error", "eglMakeCurrent fails with " + error()}};
    }
    if (surface) m_egl.destroySurface(m_display, surface);
    m_egl.destroyContext(m_display, context);
    return json;
}

} // namespace

Json askLibrary(const std::string &file) {
    const LoadedEgl egl(file);
    const char *const clientExtensions = egl.queryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
    const AskedDisplay display(egl);
    Json json = {{"client", {{"extensions", words(clientExtensions)}}},
                 {"display", display.strings()},
                 {"configs", display.configs()},
                 {"contexts", Json::array()},
                 {"refused", Json::array()}};
    std::vector<Json> seen;
    const SilentErrors silence;
    for (const Request &request : requests) {
        const Json context = display.context(request);
        if (context.contains("error")) {
            json["refused"].push_back({{"version", request.name}, {"error", context["error"]}});
            continue;
        }
        const auto known = std::ranges::find(seen, context) - seen.begin();
        if (static_cast<size_t>(known) == seen.size()) {
            seen.push_back(context);
            json["contexts"].push_back({{"requests", Json::array()}});
            json["contexts"].back().update(context);
        }
        json["contexts"][static_cast<size_t>(known)]["requests"].push_back(request.name);
    }
    return json;
}
