// What the entries answer, row by row.
#include "egl/fixture.h"

#include <functional>
#include <tuple>

namespace {

class Answers : public EntryTest {
protected:
    // Lists of attributes that last as long as the case.
    template <typename... Values>
    const EGLint *ints(Values... values) {
        return m_ints.emplace_back(std::vector<EGLint>{static_cast<EGLint>(values)..., EGL_NONE}).data();
    }
    template <typename... Values>
    const EGLAttrib *attribs(Values... values) {
        return m_attribs.emplace_back(std::vector<EGLAttrib>{static_cast<EGLAttrib>(values)..., EGL_NONE}).data();
    }
    EGLSurface pbufferWith(const EGLint *attributes) {
        return eglCreatePbufferSurface(display, EntryTest::config(), attributes);
    }

    const EGLDisplay display = initialised();
    const EGLConfig config = EntryTest::config();
    const EGLContext context = EntryTest::context(0);
    const EGLSurface pixmap = eglCreatePixmapSurface(display, config, 5, nullptr);

private:
    std::vector<std::vector<EGLint>> m_ints;
    std::vector<std::vector<EGLAttrib>> m_attribs;
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
    const EGLSurface rgb = pbufferWith(ints(EGL_WIDTH, 64, EGL_HEIGHT, 32, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGB));
    const EGLSurface refused =
        pbufferWith(ints(EGL_WIDTH, 1, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA, EGL_MIPMAP_TEXTURE, 1));
    EGLConfig chosen = nullptr;
    EGLint value = -77, count = -77;
    const std::tuple<bool, EGLint, const char *, std::function<bool()>> rows[] = {
#define REFUSAL(isBound, error, ...) {isBound, error, #__VA_ARGS__, [&] { return bool(__VA_ARGS__); }},
#include "egl/data/refusals.def"
    };
    for (const auto &[isBound, error, text, call] : rows) {
        if (isBound && !eglGetCurrentContext()) current();
        EXPECT_FALSE(call()) << text;
        EXPECT_EQ(eglGetError(), error) << text;
    }
    EXPECT_TRUE(value == -77 && count == -77 && !chosen);
}

TEST_F(Answers, ObjectsTellTheirValues) {
    const auto single = ints(EGL_RENDER_BUFFER, EGL_SINGLE_BUFFER, EGL_VG_COLORSPACE, 1234);
    const EGLSurface window = eglCreateWindowSurface(display, config, 77, single);
    for (const EGLint attribute : {EGL_MIPMAP_LEVEL, EGL_SWAP_BEHAVIOR, EGL_MULTISAMPLE_RESOLVE})
        EXPECT_SUCCEEDS(eglSurfaceAttrib(display, pixmap, attribute, EGL_BUFFER_PRESERVED)); // and stores nothing
    const auto configQuery = eglGetConfigAttrib, contextQuery = eglQueryContext;
    const auto windowQuery = eglQuerySurface, pixmapQuery = eglQuerySurface;
    const std::tuple<decltype(configQuery), void *, EGLint, EGLint, const char *> rows[] = {
#define VALUE(object, attribute, expected) {object##Query, object, attribute, expected, #object " " #attribute},
#include "egl/data/values.def"
    };
    for (const auto &[query, object, attribute, expected, text] : rows) {
        EGLint value = -77;
        EXPECT_SUCCEEDS(query(display, object, attribute, &value)) << text;
        EXPECT_EQ(value, expected) << text;
    }
}
