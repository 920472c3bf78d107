#include "textures/texture_limits.h"

#include "context/es_context.h"
#include "textures/texture_targets.h"

namespace {

struct Limits {
    GLenum side;   // the limit of width and height, and of a 3D texture's depth
    GLenum layers; // the limit of layers; GL_NONE without layers
};

Limits limitsOf(GLenum target) {
    switch (wholeTarget(target)) {
    case GL_TEXTURE_3D:
        return {GL_MAX_3D_TEXTURE_SIZE, GL_MAX_3D_TEXTURE_SIZE};
    case GL_TEXTURE_CUBE_MAP:
        return {GL_MAX_CUBE_MAP_TEXTURE_SIZE, GL_NONE};
    case GL_TEXTURE_CUBE_MAP_ARRAY:
        return {GL_MAX_CUBE_MAP_TEXTURE_SIZE, GL_MAX_ARRAY_TEXTURE_LAYERS};
    case GL_TEXTURE_2D_ARRAY:
        return {GL_MAX_TEXTURE_SIZE, GL_MAX_ARRAY_TEXTURE_LAYERS};
    default:
        return {GL_MAX_TEXTURE_SIZE, GL_NONE};
    }
}

} // namespace

bool isTooLarge(const EsContext &context, GLenum target, GLint level, const ImageSize &size) {
    const Announcement &announced = context.announced;
    if (!announced.hasLimits() || level < 0 || level > 30) return false;
    const auto [side, layers] = limitsOf(target);
    const GLint most = announced.most(side) >> level;
    if (size.width > most || size.height > most) return true;
    if (layers == GL_NONE) return false;
    const bool isDeep = layers == GL_MAX_3D_TEXTURE_SIZE;
    return size.depth > (isDeep ? most : announced.most(layers));
}
