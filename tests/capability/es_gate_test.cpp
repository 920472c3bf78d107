#include "capability/es_gate.h"

#include <gmock/gmock.h>

#include <array>

#include "capability/scripted_host.h"
#include "fakes/every_extension.h"

using namespace capability;
using testing::ElementsAre;

namespace {

const auto windowSystem = std::make_shared<glove::WSAPI>();

} // namespace

TEST(EsGate, AsksForWhatTheVersionNeeds) {
    const auto no = HostAnswer::lacks, yes = HostAnswer::carries;
    const auto without = [](const char *name) { return everyExtensionBut({name}); };
    const struct {
        const char *version;
        std::string extensions;
        HostAnswer es20, es30, es31, es32;
        const char *reason;
    } rows[] = {
        {"4.6", "", yes, no, no, no, "gpu_shader5 has no core form"},
        {"4.1", "GL_ARB_ES3_compatibility", yes, yes, no, no, "a way out for ES 3.0 alone"},
        {"3.3", "", no, no, no, no, "hangs on texture storage"},
        {"3.3", "GL_ARB_ES2_compatibility", yes, no, no, no, "a way out for ES 2.0"},
        {"2.1", "GL_ARB_ES3_compatibility_not GL_ARB_ES2_compatibility", yes, yes, no, no, "by text"},
        {"4.2", "GL_ARB_gpu_shader5", yes, yes, no, no, "ES 3.0 exactly"},
        {"4.6", without("GL_ARB_sample_shading"), yes, yes, no, no, "sample shading counts from ES 3.1 on"},
        {"4.2", without("GL_ARB_compute_shader"), yes, yes, no, no,
         "held back by a feature that the report does not name"},
        {"4.6", without("GL_ARB_viewport_array"), yes, yes, yes, yes, "no version needs it"},
        {"3.1", without("GL_ARB_draw_elements_base_vertex"), yes, yes, yes, no, "all that ES 3.2 adds"},
        {"5.0", everyExtension, yes, yes, yes, yes, "an unknown version"},
        {nullptr, "", no, no, no, no, "no texts"},
    };
    for (const auto &row : rows) {
        const ScriptedHost host(row.version, row.extensions.c_str());
        const auto ask = [&](int32_t major, int32_t minor) {
            ContextAttribs attribs{};
            attribs.esMajor = major;
            attribs.esMinor = minor;
            return hostCanCarryEsVersion(host.library, windowSystem, attribs);
        };
        EXPECT_THAT((std::array{ask(2, 0), ask(3, 0), ask(3, 1), ask(3, 2)}),
                    ElementsAre(row.es20, row.es30, row.es31, row.es32))
            << row.reason;
        EXPECT_EQ(ask(1, 0), yes) << "ES 1 is not tested";
        EXPECT_EQ(ask(3, 7), yes) << "nor is an unknown version";
    }
}

TEST(EsGate, NamesTheMissingFeaturesInItsOrder) {
    const ScriptedHost host("3.2");
    EXPECT_THAT(featuresHoldingBack(host.library, es3_0),
                ElementsAre(Feature::samplerObjects, Feature::separateShaderObjects, Feature::gpuShader5,
                            Feature::shaderImageLoadStore, Feature::bufferObjectRangeMapping,
                            Feature::multisampledFramebuffers, Feature::textureStorage));
    EXPECT_THAT(featuresHoldingBack(host.library, 1), ElementsAre());
    host.script->version = "3.1";
    const auto es32 = featuresHoldingBack(host.library, es3_2);
    ASSERT_FALSE(es32.empty());
    EXPECT_EQ(es32.front(), Feature::baseVertexOffset);
    EXPECT_EQ(es32.back(), Feature::textureStorage);
}
