#include "profiles/config.h"

#include <tuple>

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gtest/gtest.h>

namespace {

using egl::Config;
using List = std::vector<int32_t>;

// Over the defaults, without a config id or a depth, which lists may ask for all the same.
Config makeConfig(List attributes) {
    attributes.push_back(EGL_NONE);
    return {nullptr, attributes.data()};
}

bool matches(const Config &config, List list) {
    list.push_back(EGL_NONE);
    return config.matches(list.data());
}

TEST(ConfigMatch, Rules) {
    const std::tuple<List, bool, const char *> rows[] = {
        {{}, true, "an empty list has no defaults"},
        {{EGL_CONFIG_CAVEAT, EGL_SLOW_CONFIG}, false, "another caveat"},
        {{EGL_BIND_TO_TEXTURE_RGB, 0}, false, "not equal, though less"},
        {{EGL_LEVEL, EGL_DONT_CARE}, false, "-1 is a level like any other"},
        {{EGL_CONFIG_ID, EGL_DONT_CARE}, false, "-1 is an id like any other"},
        {{EGL_SURFACE_TYPE, EGL_WINDOW_BIT | 0x400}, true, "only three bits of the list count"},
        {{EGL_SURFACE_TYPE, EGL_DONT_CARE}, false, "-1 asks for all three"},
        {{EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT}, true, "one of two"},
        {{EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT | EGL_OPENGL_ES3_BIT_KHR}, false, "one is missing"},
        {{EGL_RENDERABLE_TYPE, EGL_DONT_CARE}, false, "-1 asks for all bits"},
        {{EGL_CONFORMANT, 1, EGL_ALPHA_MASK_SIZE, 8, EGL_NATIVE_VISUAL_ID, 9, EGL_LUMINANCE_SIZE, 8}, true, "untested"},
        {{EGL_COLOR_BUFFER_TYPE, 1, EGL_NATIVE_VISUAL_TYPE, 9, EGL_MIN_SWAP_INTERVAL, 1}, true, "untested"},
        {{EGL_MAX_PBUFFER_WIDTH, 1 << 20, 0x3030, 1, EGL_DEPTH_SIZE, 99}, true, "the config lacks them"},
        {{EGL_TRANSPARENT_TYPE, EGL_NONE, EGL_TRANSPARENT_RED_VALUE, 5}, true, "colours have no weight of their own"},
        {{EGL_TRANSPARENT_TYPE, EGL_TRANSPARENT_RGB}, false, "no config is transparent"},
        {{EGL_LEVEL, 1, EGL_CONFIG_ID, 3, EGL_LEVEL, 1}, true, "the id is the answer in spite of what is around"},
        {{EGL_CONFIG_ID, 4, EGL_CONFIG_ID, 3}, true, "a later id can still be the answer"},
        {{EGL_RED_SIZE, 8, EGL_GREEN_SIZE, 1}, false, "a later success makes up for nothing"},
    };
    const int32_t sizes[] = {EGL_BUFFER_SIZE, EGL_RED_SIZE,     EGL_GREEN_SIZE, EGL_BLUE_SIZE,     EGL_ALPHA_SIZE,
                             EGL_DEPTH_SIZE,  EGL_STENCIL_SIZE, EGL_SAMPLES,    EGL_SAMPLE_BUFFERS};
    Config config = makeConfig({EGL_CONFIG_ID, 3, EGL_LEVEL, 0, EGL_RED_SIZE, 5, EGL_GREEN_SIZE, 6, EGL_SURFACE_TYPE,
                                EGL_WINDOW_BIT | EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE, 5});
    for (const auto &[list, isMatch, reason] : rows)
        EXPECT_EQ(matches(config, list), isMatch) << reason;
    EXPECT_TRUE(config.matches(nullptr));
    for (const int32_t size : sizes) {
        config.setAttribute(size, 5);
        EXPECT_TRUE(matches(config, {size, 5, size, 4, size, EGL_DONT_CARE})) << size;
        EXPECT_FALSE(matches(config, {size, 6})) << size;
    }
    const auto clear = makeConfig({EGL_TRANSPARENT_TYPE, EGL_TRANSPARENT_RGB, EGL_TRANSPARENT_GREEN_VALUE, 7});
    for (const auto &[green, isMatch] : {std::pair(7, true), {EGL_DONT_CARE, true}, {8, false}})
        EXPECT_EQ(matches(clear, {EGL_TRANSPARENT_GREEN_VALUE, green, EGL_TRANSPARENT_TYPE, EGL_TRANSPARENT_RGB}),
                  isMatch);
}

TEST(ValidateAttributeList, AcceptsExactlyTheKnownValues) {
    const std::tuple<List, List, List> rows[] = {
        // attributes, values that are valid, values that are not
        {{EGL_BUFFER_SIZE - 1, EGL_CONFORMANT + 1, -1, EGL_MATCH_NATIVE_PIXMAP}, {}, {0, EGL_DONT_CARE}},
        {{EGL_BUFFER_SIZE, EGL_ALPHA_SIZE, EGL_RED_SIZE, EGL_DEPTH_SIZE, EGL_STENCIL_SIZE}, {-1, 0, 1000}, {-2}},
        {{EGL_CONFIG_CAVEAT}, {EGL_NONE, EGL_SLOW_CONFIG, EGL_NON_CONFORMANT_CONFIG, -1}, {0, 1, -2}},
        {{EGL_NATIVE_RENDERABLE, EGL_BIND_TO_TEXTURE_RGB, EGL_BIND_TO_TEXTURE_RGBA}, {-1, 0, 1}, {-2, 2}},
        {{EGL_TRANSPARENT_TYPE}, {EGL_NONE, EGL_TRANSPARENT_RGB}, {EGL_DONT_CARE, 0}},
        {{EGL_SAMPLES, EGL_SAMPLE_BUFFERS, EGL_LEVEL, 0x3030, EGL_CONFORMANT}, {-9, 0, 9}, {}},
    };
    const auto isValid = [](int32_t attribute, int32_t value) {
        const int32_t list[] = {EGL_LEVEL, 0, attribute, value, EGL_NONE};
        return egl::validateAttributeList(list);
    };
    for (const auto &[attributes, valid, invalid] : rows)
        for (const int32_t attribute : attributes) {
            for (const int32_t value : valid)
                EXPECT_TRUE(isValid(attribute, value)) << attribute << " " << value;
            for (const int32_t value : invalid)
                EXPECT_FALSE(isValid(attribute, value)) << attribute << " " << value;
        }
}

} // namespace
