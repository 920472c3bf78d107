#include "profiles/config_list.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gmock/gmock.h>

namespace {

using egl::Config;
using egl::ConfigList;
using List = std::vector<int32_t>;
using testing::ElementsAre;

egl::DeviceProfile makeProfile(const std::vector<List> &configs) {
    egl::DeviceProfile profile{.configs = {}, .name = "test", .esVersions = {}};
    for (List list : configs) {
        list.push_back(EGL_NONE);
        profile.configs.insert(Config(nullptr, list.data()));
    }
    return profile;
}

// The handles that are stored for this size, then what stayed untouched of the four places.
std::vector<intptr_t> stored(const ConfigList &list, int32_t size, const int32_t *choice = nullptr) {
    std::vector<intptr_t> handles(4);
    const auto out = reinterpret_cast<void **>(handles.data());
    const uint32_t count = choice ? list.chooseConfigs(choice, out, size) : list.listConfigs(out, size);
    EXPECT_EQ(std::ranges::count(handles, 0), 4 - static_cast<int>(count));
    return handles;
}

TEST(ConfigList, StoresHandlesUpToTheSize) {
    const ConfigList list(makeProfile({{EGL_CONFIG_ID, 1, EGL_BUFFER_SIZE, 32},
                                       {EGL_CONFIG_ID, 2, EGL_BUFFER_SIZE, 16, EGL_DEPTH_SIZE, 0},
                                       {EGL_CONFIG_ID, -2, EGL_BUFFER_SIZE, 16}}),
                          0);
    const int32_t any[] = {EGL_NONE}, deep[] = {EGL_DEPTH_SIZE, 16, EGL_NONE};
    EXPECT_THAT(stored(list, 4), ElementsAre(1, 2, -2, 0)) << "negative ids are sign-extended and listed last";
    EXPECT_THAT(stored(list, 2), ElementsAre(1, 2, 0, 0));
    EXPECT_THAT(stored(list, -1), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(stored(list, 4, any), ElementsAre(-2, 2, 1, 0));
    EXPECT_THAT(stored(list, 1, any), ElementsAre(-2, 0, 0, 0));
    EXPECT_THAT(stored(list, -1, any), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(stored(list, 4, deep), ElementsAre(-2, 1, 0, 0));
    EXPECT_EQ(list.listConfigs(nullptr, -5) + list.chooseConfigs(nullptr, nullptr, -5), 6u);
    EXPECT_EQ(list.findConfig(static_cast<uint64_t>(-2))->attributeOr0(EGL_CONFIG_ID), -2);
    EXPECT_EQ(list.findConfig(0xfffffffe), nullptr);
    EXPECT_EQ(list.noConfig().attributeOr0(EGL_CONFIG_ID), 0);
    EXPECT_EQ(list.noConfig().attributeOr0(EGL_BUFFER_SIZE), 32);
}

} // namespace
