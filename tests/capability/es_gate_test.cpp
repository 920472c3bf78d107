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
    const bool no = false, yes = true;
    const auto without = [](const char *name) { return everyExtensionBut({name}); };
    const auto expectGate = [&](const char *version, const std::string &extensions, bool es20, bool es30, bool es31,
                                bool es32, const char *reason) {
        const ScriptedHost host(version, extensions.c_str());
        const auto gate = probeEsGate(host.library, windowSystem);
        const auto ask = [&](int32_t major, int32_t minor) {
            ContextAttribs attribs{};
            attribs.esMajor = major;
            attribs.esMinor = minor;
            return hostCanCarryEsVersion(*gate, attribs);
        };
        EXPECT_THAT((std::array{ask(2, 0), ask(3, 0), ask(3, 1), ask(3, 2)}), ElementsAre(es20, es30, es31, es32))
            << reason;
        EXPECT_EQ(ask(1, 0), yes) << "ES 1 is not tested";
        EXPECT_EQ(ask(3, 7), yes) << "nor is an unknown version";
    };
#define GATE(...) expectGate(__VA_ARGS__);
#include "capability/data/gates.def"
}

TEST(EsGate, PromisesAVersionFromTheHostsOwnOn) {
    const std::tuple<const char *, const char *, std::optional<int32_t>> rows[] = {
        {"4.2", "", {}}, {"4.3", "", 0}, {"4.4", "", 0}, {"4.5", "", 1}, {"4.2", "GL_ARB_ES3_2_compatibility", 2}};
    for (const auto &[version, extensions, minor] : rows) {
        const ScriptedHost host(version, extensions);
        EXPECT_EQ(probeEsGate(host.library, windowSystem)->promisedEs3Minor(), minor) << version << extensions;
    }
}

TEST(EsGate, NamesTheMissingFeaturesInItsOrder) {
    const ScriptedHost host("3.2");
    EXPECT_THAT(probeEsGate(host.library, windowSystem)->of(es3_0).missing,
                ElementsAre(Feature::samplerObjects, Feature::separateShaderObjects, Feature::gpuShader5,
                            Feature::shaderImageLoadStore, Feature::bufferObjectRangeMapping,
                            Feature::multisampledFramebuffers, Feature::textureStorage));
}
