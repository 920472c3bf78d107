// What the contexts of every back end have. Made and used on the thread that has the host context current.
#pragma once

#include "common/host_features.h"
#include "common/render_mode.h"

#include <utility>

class BackEndContext {
    const std::shared_ptr<const HostFeatures> m_host = HostFeatures::ofCurrentContext();

public:
    // Keeps an error of our own for the application, unless one is pending.
    void raise(unsigned error) {
        if (m_error == 0) m_error = error;
    }
    // The pending error, which is none afterwards; 0 without one.
    [[nodiscard]] unsigned takeError() { return std::exchange(m_error, 0u); }

    const HostFeatures &host = *m_host;
    RenderMode renderMode;

private:
    unsigned m_error = 0;
};
