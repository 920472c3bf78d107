// The System Report of one application, put together from its records as they come.
#pragma once

#include <string>

#include "capability/system_report.h"
#include "ui/message_builders.h"

class ReceivedReport {
public:
    // Types 14 to 19. A record that makes no sense is passed over: whoever connects may send it.
    void take(const ui::messages::Message &message);
    [[nodiscard]] std::string text() const;

private:
    capability::SystemReport m_report;
};
