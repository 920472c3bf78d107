#include "egl/print_system_report.h"

#include <atomic>
#include <iostream>

#include "capability/format_system_report.h"
#include "egl/state.h"

namespace egl {

void printSystemReportOnce() {
    static std::atomic<bool> isPrinted = false;
    if (isPrinted.exchange(true, std::memory_order_relaxed)) return;
    std::cerr << "System Report:" << std::endl;
    std::cerr << capability::formatSystemReport(state().report(), false) << std::endl;
}

} // namespace egl
