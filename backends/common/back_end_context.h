// The common part of every back end's contexts. Created and used on the thread that has the host context current.
#pragma once

#include "common/host_features.h"
#include "common/render_mode.h"

#include <utility>

class BackEndContext {
protected:
    const std::shared_ptr<const HostFeatures> m_host = HostFeatures::ofCurrentContext();

public:
    // Records an error of this library for the application, unless one is pending.
    void raise(unsigned error) {
        if (m_error == 0) m_error = error;
    }
    // Returns and clears the pending error; 0 without one.
    [[nodiscard]] unsigned takeError() { return std::exchange(m_error, 0u); }

    const HostFeatures &host = *m_host;
    RenderMode renderMode;

private:
    unsigned m_error = 0;
};
