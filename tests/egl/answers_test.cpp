// Tables of the results of entries.
#include "egl/fixture.h"

#include <functional>

namespace {

class Answers : public EntryTest {
protected:
    // An attribute list that lives as long as the process.
    template <typename Type, typename... Values>
    static const Type *list(Values... values) {
        static std::vector<std::vector<Type>> kept;
        return kept.emplace_back(std::vector<Type>{static_cast<Type>(values)..., EGL_NONE}).data();
    }
    EGLSurface pbufferWith(const EGLint *attributes) {
        return eglCreatePbufferSurface(display, EntryTest::config(), attributes);
    }

    const EGLDisplay display = initialised();
    const EGLConfig config = EntryTest::config();
    const EGLContext context = create({}, config);
    const EGLSurface pixmap = eglCreatePixmapSurface(display, config, 5, nullptr);
};

} // namespace

TEST_F(Answers, ErrorsNameTheFirstFault) {
    const auto setDamage = procAddress<PFNEGLSETDAMAGEREGIONKHRPROC>("eglSetDamageRegionKHR");
    const auto createSyncKhr = procAddress<PFNEGLCREATESYNCKHRPROC>("eglCreateSyncKHR");
    const auto getSyncAttribKhr = procAddress<PFNEGLGETSYNCATTRIBKHRPROC>("eglGetSyncAttribKHR");
    const auto unknownConfig = reinterpret_cast<EGLConfig>(55);
    const auto unknownContext = reinterpret_cast<EGLContext>(99);
    const auto native = reinterpret_cast<void *>(77);
    const EGLSurface window = EntryTest::window(), pbuffer = EntryTest::pbuffer();
    const EGLSurface rgb =
        pbufferWith(list<EGLint>(EGL_WIDTH, 64, EGL_HEIGHT, 32, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGB));
    const EGLSurface refused =
        pbufferWith(list<EGLint>(EGL_WIDTH, 1, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA, EGL_MIPMAP_TEXTURE, 1));
    EGLConfig chosen = nullptr;
    EGLint value = -77, count = -77;
    const auto expectRefusal = [&](bool isBound, EGLint error, const char *text, const std::function<bool()> &call) {
        if (isBound && !eglGetCurrentContext()) current();
        EXPECT_FALSE(call()) << text;
        EXPECT_EQ(eglGetError(), error) << text;
    };
#define REFUSAL(isBound, error, ...) expectRefusal(isBound, error, #__VA_ARGS__, [&] { return bool(__VA_ARGS__); });
#include "egl/data/refusals.def"
    EXPECT_TRUE(value == -77 && count == -77 && !chosen);
}

TEST_F(Answers, ObjectsTellTheirValues) {
    const auto single = list<EGLint>(EGL_RENDER_BUFFER, EGL_SINGLE_BUFFER, EGL_VG_COLORSPACE, 1234);
    const EGLSurface window = eglCreateWindowSurface(display, config, 77, single);
    for (const EGLint attribute : {EGL_MIPMAP_LEVEL, EGL_SWAP_BEHAVIOR, EGL_MULTISAMPLE_RESOLVE})
        EXPECT_SUCCEEDS(eglSurfaceAttrib(display, pixmap, attribute, EGL_BUFFER_PRESERVED)); // and stores nothing
    EGLint value;
#define VALUE(query, object, attribute, expected)                                                                      \
    value = -77;                                                                                                       \
    EXPECT_SUCCEEDS(query(display, object, attribute, &value)) << #object " " #attribute;                              \
    EXPECT_EQ(value, expected) << #object " " #attribute;
#include "egl/data/values.def"
}
