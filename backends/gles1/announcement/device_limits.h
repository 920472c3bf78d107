// The limits that are reported to an application: the device's, as far as the host supports them.
#pragma once

#include "es_gl.h"

#include "common/es_block.h"
#include "common/host_features.h"

class Limits {
public:
    // Requires a current host context.
    Limits(const HostFeatures &host, const std::optional<EsBlock> &device);

    // Null where the host's own value applies.
    [[nodiscard]] const std::vector<double> *find(GLenum pname) const;

private:
    void cutLimits(const std::optional<EsBlock> &device);
    void takeCompressedFormats(const HostFeatures &host, const std::optional<EsBlock> &device);
    void takeReadFormat(const std::optional<EsBlock> &device);

    std::map<GLenum, std::vector<double>> m_values;
};
