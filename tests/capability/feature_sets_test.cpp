#include "capability/feature_sets.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>

#include "capability/feature_checks.h"
#include "capability/feature_texts.h"
#include "capability/host_egl.h"
#include "capability/scripted_host.h"
#include "fakes/every_extension.h"

using namespace capability;
using testing::ElementsAre;

namespace {

size_t lookUps(const std::vector<const FeatureBinding *> &bindings) {
    size_t count = 0;
    for (const auto *binding : bindings)
        count += std::ranges::count_if(binding->functions, [](const void *function) { return function; });
    return count;
}

// What each level looks up, on a library that has everything.
std::vector<size_t> lookUpsOf(const ScriptedHost &host) {
    const Es31Features es31(host.library);
    std::vector<const FeatureBinding *> bindings;
    std::vector<size_t> counts;
#define FIELD(feature) bindings.push_back(&es31.feature);
#define BIND(feature)
#include "capability/data/es_base_features.def"
    counts.push_back(lookUps(bindings));
#include "capability/data/es20_features.def"
    // Bound by the next level only.
    counts.push_back(lookUps(bindings) - es31.shaderImageLoadStore.functions.size());
#include "capability/data/es30_features.def"
    counts.push_back(lookUps(bindings));
#include "capability/data/es31_features.def"
    counts.push_back(lookUps(bindings));
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
    EXPECT_EQ(es20.get.variant, -1) << "mandatory";
    EXPECT_TRUE(featureAvailable(es20.get, descriptorOf(Feature::get)));
    EXPECT_EQ(es20.get.functions.size(), 9u);
    EXPECT_EQ(es20.get.function<void *>(Feature::get, "glNoSuchName"), nullptr);
    // All names lead to one function of the fake, apart from those that it really has.
    EXPECT_EQ(es20.get.function<void *>(Feature::get, "glGetString"), host.library.getSymbol("glGetString"));
    EXPECT_EQ(es20.fenceSync.variant, 1);
    EXPECT_EQ(es20.fenceSync.functions.at(0), host.library.getSymbol("glClientWaitSync"));
    EXPECT_EQ(es20.fenceSync.functions.at(3), host.library.getSymbol("glGetSynciv"));
}

TEST(FeatureSets, VariantsFollowVersionAndExtensions) {
    const struct {
        const char *version, *extensions;
        int32_t vertexArrays, storage;
        bool hasDirectStorage;
        int32_t multisample, sampleShading, multisampleTextures, seamless;
        const char *reason;
    } rows[] = {
        {"4.6", everyExtension, 0, 0, true, 0, 1, 0, 0, "everything; the core form comes first"},
        {"4.0", "", 0, 0, false, 0, -1, -1, 0, "4.0 bare: core storage, and no direct form"},
        {"3.3", "GL_ARB_texture_storage", 0, 1, true, 0, -1, -1, 0, "3.3 with texture storage"},
        {"2.1", "GL_APPLE_vertex_array_object GL_EXT_framebuffer_multisample", 2, -1, false, 0, -1, -1, 0,
         "the second way to multisampling is variant 0 too"},
        {"2.1", "GL_ARB_texture_storage_multisample", -1, 1, true, -1, -1, -1, 0,
         "the beginning of a longer name counts before 3.0"},
        {"3.0", "GL_ARB_texture_storage_multisample", 0, -1, false, -1, -1, -1, 0, "but not from 3.0 on"},
        {"3.0", "GL_ARB_texture_storage_multisample GL_ARB_texture_multisample", 0, -1, false, -1, -1, 1, 0,
         "needs both of its extensions"},
        {"1.0", everyExtension, 1, -1, false, -1, 1, 1, 1, "a version condition beside the extensions"},
        {"5.0", "", 0, 0, false, 0, -1, 0, 0, "an unknown version passes every version test"},
        {nullptr, everyExtension, -1, -1, false, -1, -1, -1, -1, "no version text fails every test"},
    };
    for (const auto &row : rows) {
        const ScriptedHost host(row.version, row.extensions);
        const Es31Features set(host.library);
        EXPECT_THAT((std::array{set.vertexArrayObjects.variant, set.textureStorage.variant,
                                set.multisampledFramebuffers.variant, set.sampleShading.variant,
                                set.multisampleTextures.variant, set.seamlessCubeMaps.variant}),
                    ElementsAre(row.vertexArrays, row.storage, row.multisample, row.sampleShading,
                                row.multisampleTextures, row.seamless))
            << row.reason;
        EXPECT_EQ(set.textureStorage.hasDirectStorage, row.hasDirectStorage) << row.reason;
        EXPECT_EQ(set.uniforms.functions.size(), 44u) << "mandatory: looked up on any host";
    }
}

TEST(HostGlView, AsksByListOrByText) {
    const struct {
        const char *version, *extensions, *directory;
        bool hasName, hasBeginning;
        size_t known;
        const char *reason;
    } rows[] = {
        {"3.0", "GL_ARB_sync GL_ARB_copy_image", "", true, false, 2, "a list compares whole names"},
        {"3.0", "GL_ARB_sync GL_ARB_copy_image", "no_stringi", true, true, 2, "without the function, the text"},
        {"2.1", " GL_ARB_sync\tGL_x\nGL_ARB_sync ", "", true, true, 2,
         "any white space; repeats kept, unknown dropped"},
        {"2.1", nullptr, "", false, false, 0, "no text"},
        {nullptr, "GL_ARB_sync", "", true, true, 1, "no version is an old host"},
    };
    for (const auto &row : rows) {
        ScriptedHost host(row.version, row.extensions, row.directory);
        EsBaseFeatures set(host.library);
        EXPECT_EQ(hostHasExtension(set.view(), "GL_ARB_sync"), row.hasName) << row.reason;
        EXPECT_EQ(hostHasExtension(set.view(), "GL_ARB_syn"), row.hasBeginning) << row.reason;
        EXPECT_EQ(hostExtensionIds(set).size(), row.known) << row.reason;
        EXPECT_FALSE(hostHasExtension(set.view(), ""));
        EXPECT_FALSE(hostHasExtension(set.view(), nullptr));
    }
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
    EXPECT_FALSE(checkBaseFeatures(set));
    const ScriptedHost old("2.1");
    EXPECT_EQ(host::EGL(old.library).glFenceSync, nullptr) << "decided by the model, not by the function pointer";
}

TEST(FeatureTexts, TellWhatIsMissing) {
    const FeatureAlternative version{0, 12, {}}, both{1, 3, {"GL_a", "GL_b"}}, none{2, 1, {}};
    const std::string atLeast = "OpenGL version must be at least ",
                      second = atLeast + "1.2 and the following extensions must be supported: 'GL_a' 'GL_b'",
                      all = atLeast + "3.3\nOR\n" + second + "\nOR\n\nOR\n";
    const std::pair<uint32_t, std::string> rows[] = {{0, all}, {1, second}, {2, ""}, {7, all}};
    for (const auto &[variant, text] : rows)
        EXPECT_EQ(describeRequirements({{version, both, none}}, variant), text) << variant;
    EXPECT_EQ(describeFeatureFailure(descriptorOf(Feature::sampleShading), 1),
              "This feature cannot be emulated on the host system: 'sample shading'\n"
              "The following extensions must be supported: 'GL_ARB_sample_shading'");
}
