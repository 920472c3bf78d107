#include "egl/standard/images.h"

#include <atomic>
#include <climits>

#include "egl/context.h"
#include "egl/entry_frame.h"
#include "egl/standard/group_host.h"
#include "foundation/attribute_list.h"

namespace egl::standard {

namespace {

bool isTexture(EGLenum target) {
    return target == EGL_GL_TEXTURE_2D ||
           (target >= EGL_GL_TEXTURE_CUBE_MAP_POSITIVE_X && target <= EGL_GL_TEXTURE_CUBE_MAP_NEGATIVE_Z);
}

EGLint readAttributes(const EGLAttrib *attributes, zvImageSource &source) {
    for (const auto &[name, value] : AttributeList(attributes)) {
        switch (name) {
        case EGL_IMAGE_PRESERVED:
            // Both values preserve the contents.
            if (value != EGL_TRUE && value != EGL_FALSE) return EGL_BAD_PARAMETER;
            break;
        case EGL_GL_TEXTURE_LEVEL:
            if (!isTexture(source.target)) return EGL_BAD_PARAMETER;
            if (value < 0 || value > INT_MAX) return EGL_BAD_MATCH;
            source.level = static_cast<int32_t>(value);
            break;
        default:
            return EGL_BAD_PARAMETER;
        }
    }
    return EGL_SUCCESS;
}

EGLint makeStorage(Context &owner, const zvImageSource &source, zvImage &storage) {
    if (!owner.esLibrary.makeImage) return EGL_BAD_MATCH;
    Context *const current = threadRecord.current;
    // The renderbuffer may be attached to framebuffers of that context, which only that context can check.
    if (source.target == EGL_GL_RENDERBUFFER && current != &owner) return EGL_BAD_ACCESS;
    const SharedEsContext esContext(&owner);
    // A context that was never bound has no objects to use.
    if (!esContext.get()) return EGL_BAD_PARAMETER;
    EGLint error = EGL_BAD_ALLOC;
    GroupHost(owner).run([&] { error = owner.esLibrary.makeImage(esContext.get(), &source, &storage); });
    return error;
}

} // namespace

Image::Image(const Context &maker, const zvImage &storage)
    : storage(storage), group(maker.group), drop(maker.esLibrary.dropImage) {
    maker.esLibrary.library.keepLoaded("zvDropImage");
}

Image::~Image() {
    if (storage.owner && drop) drop(&storage);
}

EGLImage createImage(Display &display, EGLContext context, EGLenum target, EGLClientBuffer buffer,
                     const EGLAttrib *attributes) {
    const auto owner = display.findContext(context);
    if (context != EGL_NO_CONTEXT && !owner) return fail(EGL_BAD_CONTEXT, EGL_NO_IMAGE);
    if (!isTexture(target) && target != EGL_GL_RENDERBUFFER) return fail(EGL_BAD_PARAMETER, EGL_NO_IMAGE);
    if (!owner) return fail(EGL_BAD_CONTEXT, EGL_NO_IMAGE);
    const auto name = reinterpret_cast<uintptr_t>(buffer);
    static std::atomic<uint64_t> lastNumber = 0;
    zvImageSource source = {.target = target, .name = static_cast<uint32_t>(name), .level = 0, .number = ++lastNumber};
    if (const EGLint error = readAttributes(attributes, source); error != EGL_SUCCESS) {
        return fail(error, EGL_NO_IMAGE);
    }
    // Texture 0 belongs to one context and cannot be shared.
    if (name == 0 || name > UINT32_MAX) return fail(EGL_BAD_PARAMETER, EGL_NO_IMAGE);
    zvImage storage = {};
    if (const EGLint error = makeStorage(*owner, source, storage); error != EGL_SUCCESS) {
        return fail(error, EGL_NO_IMAGE);
    }
    return succeed(display.standardImages.insert(std::make_shared<Image>(*owner, storage)));
}

} // namespace egl::standard
