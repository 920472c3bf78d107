#include "capability/es_gate.h"

#include <gtest/gtest.h>

#include "capability/scripted_host.h"
#include "fakes/every_extension.h"
#include "host/platform/recording/control.h"

using namespace capability;

namespace {

const auto windowSystem = std::make_shared<glove::WSAPI>();

ContextAttribs attribsFor(int32_t major, int32_t minor, bool isStrict = false) {
    ContextAttribs attribs{};
    attribs.requestedMajor = major;
    attribs.esMajor = major;
    attribs.esMinor = minor;
    attribs.strictContextMode = isStrict;
    return attribs;
}

std::string without(std::string name) {
    std::string text = everyExtension;
    name += ' ';
    return text.erase(text.find(name), name.size());
}

} // namespace

TEST(EsGate, AsksForWhatTheVersionNeeds) {
    const auto no = HostAnswer::lacks, yes = HostAnswer::carries;
    const auto noSampleShading = without("GL_ARB_sample_shading"), noCompute = without("GL_ARB_compute_shader"),
               noViewports = without("GL_ARB_viewport_array"), noIndirect = without("GL_ARB_draw_indirect"),
               noBaseVertex = without("GL_ARB_draw_elements_base_vertex");
    const struct {
        const char *version, *extensions;
        HostAnswer es20, es30, es31, es32;
        const char *reason;
    } rows[] = {
        {"4.6", everyExtension, yes, yes, yes, yes, "everything"},
        {"4.6", "", yes, no, no, no, "gpu_shader5 has no core form"},
        {"4.0", "", yes, no, no, no, "4.0 bare"},
        {"4.1", "GL_ARB_ES3_compatibility", yes, yes, no, no, "a way out for ES 3.0 alone"},
        {"3.3", "", no, no, no, no, "hangs on texture storage"},
        {"3.3", "GL_ARB_texture_storage", yes, no, no, no, "3.3 with texture storage"},
        {"3.3", "GL_ARB_ES2_compatibility", yes, no, no, no, "a way out for ES 2.0"},
        {"2.1", "GL_ARB_ES3_compatibility_not GL_ARB_ES2_compatibility", yes, yes, no, no, "by text"},
        {"4.2", "GL_ARB_gpu_shader5", yes, yes, no, no, "ES 3.0 exactly"},
        {"4.6", noSampleShading.c_str(), yes, yes, no, no, "sample shading counts from ES 3.1 on"},
        {"4.2", noCompute.c_str(), yes, yes, no, no, "held back by a feature that the report does not name"},
        {"3.3", noIndirect.c_str(), yes, yes, no, no, "another one"},
        {"4.6", noViewports.c_str(), yes, yes, yes, yes, "no version needs it"},
        {"3.1", noBaseVertex.c_str(), yes, yes, yes, no, "all that ES 3.2 adds"},
        {"5.0", everyExtension, yes, yes, yes, yes, "an unknown version"},
        {nullptr, "", no, no, no, no, "no texts"},
    };
    for (const auto &row : rows) {
        const ScriptedHost host(row.version, row.extensions);
        const auto ask = [&](int32_t major, int32_t minor) {
            return hostCanCarryEsVersion(host.library, windowSystem, attribsFor(major, minor));
        };
        EXPECT_EQ(ask(2, 0), row.es20) << row.reason;
        EXPECT_EQ(ask(3, 0), row.es30) << row.reason;
        EXPECT_EQ(ask(3, 1), row.es31) << row.reason;
        EXPECT_EQ(ask(3, 2), row.es32) << row.reason;
        EXPECT_EQ(ask(1, 0), yes) << "ES 1 is not tested";
        EXPECT_EQ(ask(3, 7), yes) << "nor is an unknown version";
    }
}

TEST(EsGate, NamesTheMissingFeaturesInItsOrder) {
    const ScriptedHost host("3.2");
    EXPECT_EQ(featuresHoldingBack(host.library, es3_0),
              (std::vector<Feature>{Feature::samplerObjects, Feature::separateShaderObjects, Feature::gpuShader5,
                                    Feature::shaderImageLoadStore, Feature::bufferObjectRangeMapping,
                                    Feature::multisampledFramebuffers, Feature::textureStorage}));
    EXPECT_TRUE(featuresHoldingBack(host.library, 1).empty());
    host.script->version = "3.1";
    const auto es32 = featuresHoldingBack(host.library, es3_2);
    ASSERT_FALSE(es32.empty());
    EXPECT_EQ(es32.front(), Feature::baseVertexOffset);
    EXPECT_EQ(es32.back(), Feature::textureStorage);
}

TEST(EsGate, ReleasesItsProbe) {
    const ScriptedHost host("4.6");
    recordingReset();
    recordingMakeForeignCurrent(3);
    EXPECT_EQ(hostCanCarryEsVersion(host.library, windowSystem, attribsFor(2, 0)), HostAnswer::carries);
    recordingFailNext("makeCurrent");
    EXPECT_EQ(hostCanCarryEsVersion(host.library, windowSystem, attribsFor(1, 0)), HostAnswer::noProbe);
    std::string log(1 << 16, '\0');
    log.resize(recordingTakeLog(log.data(), log.size()));
    const auto first = log.find("restoreBinding(");
    ASSERT_NE(first, std::string::npos) << log;
    EXPECT_NE(log.find("restoreBinding(", first + 1), std::string::npos) << "the failed one too\n" << log;
}

TEST(EsGate, SettlesTheVersion) {
    const struct {
        const char *version, *extensions;
        int32_t major, minor;
        bool canBeEs3, isStrict;
        HostAnswer answer;
        int32_t esMajor, esMinor;
        const char *reason;
    } rows[] = {
        {"4.6", everyExtension, 2, 0, true, false, HostAnswer::carries, 3, 2, "raised twice"},
        {"4.6", everyExtension, 2, 0, false, false, HostAnswer::carries, 2, 0, "the config has ES 2 only"},
        {"4.0", "", 3, 0, true, false, HostAnswer::carries, 3, 0, "loose mode asks nothing"},
        {"4.0", "", 3, 0, true, true, HostAnswer::lacks, 3, 0, "strict mode does"},
        {"4.0", "", 2, 0, true, true, HostAnswer::carries, 2, 0, "back to what was asked for"},
        {"3.3", "", 2, 0, true, true, HostAnswer::lacks, 2, 0, "which can fail too"},
        {"4.6", everyExtension, 3, 1, true, true, HostAnswer::carries, 3, 2, "the raised version is the tested one"},
    };
    for (const auto &row : rows) {
        const ScriptedHost host(row.version, row.extensions);
        auto attribs = attribsFor(row.major, row.minor, row.isStrict);
        EXPECT_EQ(settleEsVersion(host.library, windowSystem, row.canBeEs3, attribs), row.answer) << row.reason;
        EXPECT_EQ(attribs.esMajor, row.esMajor) << row.reason;
        EXPECT_EQ(attribs.esMinor, row.esMinor) << row.reason;
    }
}
