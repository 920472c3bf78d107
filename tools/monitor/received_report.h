// The System Report of one application, assembled from its records.
#pragma once

#include <string>

#include "capability/system_report.h"
#include "ui/message_builders.h"

class ReceivedReport {
public:
    // Far more than a report has, so that an endless sender cannot fill the memory.
    static constexpr size_t mostRecords = 4096;

    // Types 14 to 19. An invalid or surplus record is ignored: any connected process may send it.
    void take(const ui::messages::Message &message);
    [[nodiscard]] const capability::SystemReport &report() const { return m_report; }
    [[nodiscard]] std::string text() const;

private:
    capability::SystemReport m_report;
    size_t m_taken = 0;
};
