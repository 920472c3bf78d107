// The reasons of a choice, compared with a table that was derived by hand.
#include "profiles/choice_account.h"

#include <algorithm>
#include <tuple>

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gmock/gmock.h>

#include "host/platform/operations.h"
#include "host/platform/recording/control.h"
#include "profiles/config_list.h"
#include "profiles/config_of.h"

namespace {

using egl::ConfigKind;

constexpr ConfigKind device = ConfigKind::ofDevice, desktop = ConfigKind::ofDesktop;
constexpr int32_t colours = egl::colourBits, open = -1;

using Fallen = std::vector<std::tuple<int32_t, int32_t, int32_t, int32_t>>; // id, attribute, wanted, had
// For each neighbour in the order: the key, or the key and "open" if it does not decide.
using Keys = std::vector<std::vector<int32_t>>;

struct Row {
    ConfigKind rules;
    List wanted;
    Fallen fallen;
    List order;
    Keys keys;
};

egl::DeviceProfile fourConfigs() {
    constexpr int32_t es2 = EGL_OPENGL_ES2_BIT, es23 = es2 | EGL_OPENGL_ES3_BIT, pbuffer = EGL_PBUFFER_BIT;
    const List common = {EGL_LEVEL,           0,  EGL_SURFACE_TYPE,   EGL_WINDOW_BIT | pbuffer,
                         EGL_SAMPLES,         0,  EGL_SAMPLE_BUFFERS, 0,
                         EGL_RENDERABLE_TYPE, es2};
    const List rows[] = {
        {EGL_CONFIG_ID, 1, EGL_BUFFER_SIZE, 16, EGL_RED_SIZE, 5, EGL_GREEN_SIZE, 6, EGL_BLUE_SIZE, 5, EGL_ALPHA_SIZE, 0,
         EGL_DEPTH_SIZE, 24, EGL_STENCIL_SIZE, 8},
        {EGL_CONFIG_ID, 2, EGL_BUFFER_SIZE, 32, EGL_RED_SIZE, 8, EGL_GREEN_SIZE, 8, EGL_BLUE_SIZE, 8, EGL_ALPHA_SIZE, 8,
         EGL_DEPTH_SIZE, 0, EGL_STENCIL_SIZE, 0, EGL_RENDERABLE_TYPE, es23},
        {EGL_CONFIG_ID,
         3,
         EGL_BUFFER_SIZE,
         32,
         EGL_RED_SIZE,
         8,
         EGL_GREEN_SIZE,
         8,
         EGL_BLUE_SIZE,
         8,
         EGL_ALPHA_SIZE,
         8,
         EGL_DEPTH_SIZE,
         24,
         EGL_STENCIL_SIZE,
         8,
         EGL_SAMPLES,
         4,
         EGL_SAMPLE_BUFFERS,
         1,
         EGL_RENDERABLE_TYPE,
         es23,
         EGL_TRANSPARENT_TYPE,
         EGL_TRANSPARENT_RGB,
         EGL_TRANSPARENT_GREEN_VALUE,
         7},
        {EGL_CONFIG_ID,    4,      EGL_BUFFER_SIZE,  32, EGL_RED_SIZE,      8,
         EGL_GREEN_SIZE,   8,      EGL_BLUE_SIZE,    8,  EGL_ALPHA_SIZE,    8,
         EGL_DEPTH_SIZE,   24,     EGL_STENCIL_SIZE, 8,  EGL_CONFIG_CAVEAT, EGL_SLOW_CONFIG,
         EGL_SURFACE_TYPE, pbuffer},
    };
    egl::DeviceProfile profile{.configs = {}, .name = "four", .esVersions = {}};
    for (List row : rows) {
        row.insert(row.begin(), common.begin(), common.end());
        profile.configs.insert(configOf(row));
    }
    return profile;
}

TEST(ChoiceAccount, TellsWhatThrewConfigsOutAndWhatOrderedTheRest) {
    recordingSetFormatValue(host::platform::DrawableTypes, EGL_WINDOW_BIT | EGL_PBUFFER_BIT);
    const egl::ConfigList lists[] = {{fourConfigs(), 0, device}, {fourConfigs(), 0, desktop}};
    const Row rows[] = {
#include "profiles/data/choices.def"
    };
    EXPECT_GE(std::size(rows), 30u);
    for (const Row &row : rows) {
        const egl::ConfigList &list = lists[row.rules == desktop];
        egl::ChoiceAccount account;
        void *withAccount[4] = {}, *without[4] = {};
        const List wanted = ended(row.wanted);
        const uint32_t count = list.chooseConfigs(wanted.data(), withAccount, 4, &account);
        EXPECT_EQ(count, list.chooseConfigs(wanted.data(), without, 4));
        EXPECT_TRUE(std::ranges::equal(withAccount, without)) << "the reasons change the answer";

        Fallen fallen;
        for (const auto &[id, reason] : account.fallenOut)
            fallen.emplace_back(id, reason.attribute, reason.wanted, reason.had);
        Keys keys;
        for (const egl::Comparison &comparison : account.comparisons)
            keys.push_back(comparison.isBefore ? List{comparison.key} : List{comparison.key, open});
        const auto about = testing::PrintToString(row.wanted) + (row.rules == desktop ? " desktop" : " device");
        EXPECT_EQ(fallen, row.fallen) << about;
        EXPECT_EQ(account.order, row.order) << about;
        EXPECT_EQ(keys, row.keys) << about;
        EXPECT_EQ(count, account.order.size()) << about;
    }
}

} // namespace
