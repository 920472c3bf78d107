#include "programs/shader_constants.h"

#include "programs/shader_language.h"

namespace {

struct Constant {
    std::string_view name;
    GLenum pname;
    GLint divisor;
};
constexpr Constant constants[] = {
#define SHADER_CONSTANT(name, pname, divisor) {#name, pname, divisor},
#include "programs/shader_constants.def"
#undef SHADER_CONSTANT
};

} // namespace

std::string withConstantsOf(const Announcement &announced, std::string source) {
    if (!announced.hasLimits() || source.find("gl_M") == std::string::npos) return source;
    for (const Constant &constant : constants) {
        const std::vector<double> *const limit = announced.limit(constant.pname);
        if (!limit) continue;
        const auto number = static_cast<GLint>(limit->front()) / constant.divisor;
        replaceWords(source, constant.name, '(' + std::to_string(number) + ')');
    }
    return source;
}
