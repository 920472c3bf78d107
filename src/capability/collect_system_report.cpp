#include "capability/collect_system_report.h"

#include <string_view>
#include <unordered_set>
#include <vector>

#include "capability/feature_sets.h"
#include "capability/host_probe.h"

namespace capability {

namespace {

template <Feature feature>
void sendFeature(SystemReportReceiver &receiver, const FeatureBinding<feature> &binding) {
    const auto &descriptor = descriptorOf(feature);
    receiver.receive(FeatureRecord{descriptor.name, featureAvailable(binding)});
    for (const auto &alternative : descriptor.alternatives) {
        FeatureAlternativeRecord record{descriptor.name, alternative.minVersion, {}};
        for (const char *name : alternative.extensions)
            record.extensions.push_back(hostExtensionFromName(name));
        receiver.receive(record);
    }
}

// Querying each extension of the catalogue separately walks the host's list hundreds of times, which takes tens of
// milliseconds in a process's first call. A list is walked once here; the results equal those of hostHasExtensionId.
std::vector<bool> extensionsPresent(const HostGlView &view) {
    std::vector<bool> isPresent(hostExtensionCount + 1);
    if (!view.listsExtensions(hostGlVersion(view))) {
        for (HostExtension id = 1; id <= hostExtensionCount; ++id)
            isPresent[id] = hostHasExtensionId(view, id);
        return isPresent;
    }
    std::unordered_set<std::string_view> listed;
    const int32_t count = view.listedExtensionCount();
    for (int32_t index = 0; index < count; ++index) {
        if (const char *name = view.listedExtension(index)) listed.insert(name);
    }
    for (HostExtension id = 1; id <= hostExtensionCount; ++id)
        isPresent[id] = listed.contains(hostExtensionName(id));
    return isPresent;
}

void sendHost(SystemReportReceiver &receiver, const HostGlView &view) {
    receiver.receive(GlVersionRecord{hostGlVersion(view)});
    const auto isPresent = extensionsPresent(view);
    for (HostExtension id = 1; id <= hostExtensionCount; ++id)
        receiver.receive(ExtensionRecord{id, isPresent[id]});
}

// The ES 3.1 set has all bindings: each level includes those of the levels below.
void sendAll(SystemReportReceiver &receiver, const Es31Features &set) {
    sendHost(receiver, set.view());

    // Requirements are sent whether or not the feature is available.
#define REPORTED(level, feature) sendFeature(receiver, set.feature);
#define ES_REQUIREMENT(section, feature)                                                                               \
    receiver.receive(EsRequirementRecord{section, descriptorOf(Feature::feature).name});
#define ES_EXTENSION_REQUIREMENT(extension, feature)                                                                   \
    receiver.receive(EsExtensionRequirementRecord{extension, descriptorOf(Feature::feature).name});
#include "capability/data/report_records.def"
#undef ES_EXTENSION_REQUIREMENT
#undef ES_REQUIREMENT
#undef REPORTED
}

} // namespace

std::optional<EsGate> collectSystemReport(const DynamicLibrary &library,
                                          const std::shared_ptr<glove::WSAPI> &windowSystem,
                                          SystemReportReceiver &receiver) {
    std::optional<EsGate> gate;
    const HostProbe probe(windowSystem);
    if (probe.isCurrent()) {
        const Es31Features set(library);
        sendAll(receiver, set);
        gate.emplace(set);
    }
    receiver.receive(EndRecord{});
    return gate;
}

} // namespace capability
