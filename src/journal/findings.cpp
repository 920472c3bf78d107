#include "journal/findings.h"

#include <map>
#include <mutex>
#include <tuple>

#include <nlohmann/json.hpp>

#include "foundation/gl_types.h"

namespace journal {

namespace {

struct Findings {
    using Lacking = std::tuple<std::string, std::string, std::string>; // what, name, call

    std::mutex mutex; // guards all below
    std::map<Lacking, uint64_t> lacking;
    std::map<std::pair<std::string, uint32_t>, uint64_t> glErrors; // by call and error
};

// Never destroyed: threads call functions while the process ends.
Findings &findings() {
    static Findings &instance = *new Findings;
    return instance;
}

const char *errorName(uint32_t error) {
    switch (error) {
    case GL_INVALID_ENUM:
        return "GL_INVALID_ENUM";
    case GL_INVALID_VALUE:
        return "GL_INVALID_VALUE";
    case GL_INVALID_OPERATION:
        return "GL_INVALID_OPERATION";
    case GL_STACK_OVERFLOW:
        return "GL_STACK_OVERFLOW";
    case GL_STACK_UNDERFLOW:
        return "GL_STACK_UNDERFLOW";
    case GL_OUT_OF_MEMORY:
        return "GL_OUT_OF_MEMORY";
    case GL_INVALID_FRAMEBUFFER_OPERATION:
        return "GL_INVALID_FRAMEBUFFER_OPERATION";
    case GL_CONTEXT_LOST:
        return "GL_CONTEXT_LOST";
    default:
        return "an error of another kind";
    }
}

} // namespace

void findLacking(const char *what, const std::string &name, const std::string &call, const Json &details) {
    {
        const std::lock_guard lock(findings().mutex);
        if (++findings().lacking[{what, name, call}] > 1) return;
    }
    Json fields = {{"what", what}, {"name", name}, {"call", call}};
    fields.update(details);
    write("lacking", fields);
}

void findGlError(const std::string &call, uint32_t error, const std::string &arguments) {
    {
        const std::lock_guard lock(findings().mutex);
        if (++findings().glErrors[{call, error}] > 1) return;
    }
    write("glError", {{"call", call}, {"error", errorName(error)}, {"arguments", arguments}});
}

Json countedFindings() {
    const std::lock_guard lock(findings().mutex);
    Json lacking = Json::array(), errors = Json::array();
    for (const auto &[key, count] : findings().lacking) {
        const auto &[what, name, call] = key;
        lacking.push_back({{"what", what}, {"name", name}, {"call", call}, {"count", count}});
    }
    for (const auto &[key, count] : findings().glErrors)
        errors.push_back({{"call", key.first}, {"error", errorName(key.second)}, {"count", count}});
    return {{"lacking", lacking}, {"glErrors", errors}};
}

} // namespace journal
