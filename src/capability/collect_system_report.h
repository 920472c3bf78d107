// Runs the whole feature model against the host and sends each fact as a record.
#pragma once

#include <memory>
#include <optional>

#include "capability/es_gate.h"
#include "capability/system_report.h"
#include "foundation/dynamic_library.h"
#include "host/wsapi.h"

namespace capability {

// Probes with a context on the calling thread. When the host has none, the end record is all that is sent.
// Returns the gate of the same probe.
std::optional<EsGate> collectSystemReport(const DynamicLibrary &library,
                                          const std::shared_ptr<glove::WSAPI> &windowSystem,
                                          SystemReportReceiver &receiver);

} // namespace capability
