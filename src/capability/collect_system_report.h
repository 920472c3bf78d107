// Runs the whole feature model against the host and sends each fact as a record.
#pragma once

#include <memory>
#include <optional>

#include "capability/es_gate.h"
#include "capability/system_report.h"
#include "foundation/dynamic_library.h"
#include "host/wsapi.h"

namespace capability {

// Works under a probing context on the calling thread. A host that gives none is reported by the end record alone.
// Gives the gate by the same look at the host.
std::optional<EsGate> collectSystemReport(const DynamicLibrary &library,
                                          const std::shared_ptr<glove::WSAPI> &windowSystem,
                                          SystemReportReceiver &receiver);

} // namespace capability
