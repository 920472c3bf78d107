#include "capability/feature_sets.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "capability/es_gate.h"
#include "capability/feature_texts.h"
#include "capability/host_egl.h"
#include "capability/scripted_host.h"
#include "fakes/every_extension.h"
#include "support/file_text.h"

using namespace capability;
using testing::ElementsAre;

namespace {

// The number of lookups of each level, for a library that has every function.
std::vector<size_t> lookUpsOf(const ScriptedHost &host) {
    const Es31Features es31(host.library);
    std::vector<size_t> counts;
    size_t count = 0;
#define FIELD(feature) count += std::ranges::count_if(es31.feature.functions, [](auto function) { return function; });
#define BIND(feature)
#include "capability/data/es_base_features.def"
    counts.push_back(count);
#include "capability/data/es20_features.def"
    counts.push_back(count - es31.shaderImageLoadStore.functions.size()); // bound by the next level only
#include "capability/data/es30_features.def"
    counts.push_back(count);
#include "capability/data/es31_features.def"
    counts.push_back(count);
#undef BIND
#undef FIELD
    return counts;
}

} // namespace

TEST(FeatureSets, LookEveryNameUp) {
    EXPECT_THAT(lookUpsOf(ScriptedHost("4.6", everyExtension)), ElementsAre(237, 372, 384, 423));
    const auto noTextureStorage = everyExtensionBut({"GL_ARB_texture_storage"});
    EXPECT_THAT(lookUpsOf(ScriptedHost("4.6", noTextureStorage.c_str())), ElementsAre(234, 369, 381, 420));
}

TEST(FeatureSets, ALevelBindsWhatIsItsOwnByTheNamesOfItsVariant) {
    const ScriptedHost host("2.1", everyExtension);
    const Es20Features es20(host.library);
    EXPECT_EQ(es20.shaderImageLoadStore.variant, -1);
    EXPECT_EQ(Es30Features(host.library).shaderImageLoadStore.variant, 1);
    EXPECT_TRUE(es20.get.variant == -1 && featureAvailable(es20.get)) << "mandatory";
    EXPECT_EQ(FeatureBinding<Feature::get>().function<void *>("glGetString"), nullptr) << "nothing is looked up";
    // All names have the same function in the fake, except those that it really has.
    EXPECT_EQ(es20.get.function<void *>("glGetString"), host.library.getSymbol("glGetString"));
    EXPECT_EQ(es20.fenceSync.functions.at(3), host.library.getSymbol("glGetSynciv"));
}

TEST(FeatureSets, VariantsFollowVersionAndExtensions) {
    const auto expectVariants = [&](const char *version, const char *extensions, const char *reason,
                                    bool hasDirectStorage, const std::vector<int32_t> &variants) {
        const ScriptedHost host(version, extensions);
        const Es31Features set(host.library);
        EXPECT_THAT(variants, ElementsAre(set.vertexArrayObjects.variant, set.textureStorage.variant,
                                          set.multisampledFramebuffers.variant, set.sampleShading.variant,
                                          set.multisampleTextures.variant, set.seamlessCubeMaps.variant))
            << reason;
        EXPECT_EQ(set.textureStorage.hasDirectStorage, hasDirectStorage) << reason;
        EXPECT_EQ(set.uniforms.functions.size(), 44u) << "mandatory: looked up on any host";
    };
#define VARIANTS(...) expectVariants(__VA_ARGS__);
#include "capability/data/variants.def"
}

TEST(HostGlView, AsksByListOrByText) {
    const auto expectView = [&](const char *version, const char *extensions, const char *directory, bool hasName,
                                bool hasBeginning, size_t known, const char *reason) {
        const ScriptedHost host(version, extensions, directory);
        EsBaseFeatures set(host.library);
        EXPECT_EQ(hostHasExtension(set.view(), "GL_ARB_sync"), hasName) << reason;
        EXPECT_EQ(hostHasExtension(set.view(), "GL_ARB_syn"), hasBeginning) << reason;
        EXPECT_EQ(hostExtensionIds(set).size(), known) << reason;
        EXPECT_FALSE(hostHasExtension(set.view(), "") || hostHasExtension(set.view(), nullptr));
    };
#define VIEW(...) expectView(__VA_ARGS__);
#include "capability/data/views.def"
    EXPECT_TRUE(hostHasExtension({}, "")) << "before any look at the name";
    EXPECT_EQ(hostGlVersion({}), 20);
}

TEST(FeatureSets, VersionsAreAskedOnce) {
    ScriptedHost host(nullptr);
    EsBaseFeatures set(host.library);
    EXPECT_EQ(cachedGlVersion(set), 0);
    for (const auto &[version, glslVersion] : {std::pair("4.1 later", "3.30"), {"3.3", "4.60"}}) {
        host.script->version = version;
        host.script->glslVersion = glslVersion;
        EXPECT_EQ(cachedGlVersion(set), 14) << "no text is not remembered";
        EXPECT_EQ(cachedGlslVersion(set), 6);
    }
    EXPECT_EQ(hostGlVersion(set.view()), 12);
}

TEST(FeatureSets, NothingIsLookedUpInAClosedLibraryOrAgainstTheModel) {
    const DynamicLibrary closed("libGL.so.1");
    const Es31Features set(closed);
    EXPECT_EQ(hostGlVersion(set.view()), 0);
    EXPECT_FALSE(EsGate(set).of(es2_0).isPassed());
    const ScriptedHost old("2.1");
    EXPECT_EQ(host::EGL(old.library).glFenceSync, nullptr) << "decided by the model, not by the function pointer";
}

TEST(FeatureTexts, TellWhatIsMissing) {
    const FeatureAlternative version{0, 12, {}}, both{1, 3, {"GL_a", "GL_b"}}, none{2, 1, {}};
    std::string told;
    for (const uint32_t variant : {0, 1, 2, 7})
        told += describeRequirements({{version, both, none}}, variant) + "\n--\n";
    told += describeFeatureFailure(descriptorOf(Feature::sampleShading), 1) + "\n";
    EXPECT_EQ(told, fileText(ZELVANE_SOURCE_DIR "/tests/capability/data/requirements.txt"));
}
