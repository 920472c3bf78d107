// What a context tells of itself: from the device profile in force, cut to what the host can carry, or from the host
// alone. Constant once made, with the host context current.
#pragma once

#include "common/es_block.h"
#include "common/host_features.h"

#include "es_gl.h"

#include <string>
#include <string_view>
#include <vector>

struct Announcement {
    // profileText: as zvSettingsProfileText gives it; null and the empty text mean no profile.
    Announcement(const HostFeatures &host, const char *profileText, GLint major, GLint minor);

    // names: of extensions, with a blank between.
    [[nodiscard]] bool hasOneOf(std::string_view names) const;

    std::string version;
    std::string shadingLanguageVersion;
    std::string vendor;
    std::string renderer;
    std::vector<std::string> extensionNames;
    std::string extensions; // with a blank between
    std::vector<double> compressedFormats;

    // Where the profile says anything of the limit; null where the host's own answer holds.
    [[nodiscard]] const std::vector<double> *limit(GLenum pname) const;

    // How much of it an application may use: what limit() says, or more than any host has, which holds its own.
    [[nodiscard]] GLint most(GLenum pname) const;
    [[nodiscard]] bool hasLimits() const { return !m_limits.empty(); }

private:
    [[nodiscard]] std::vector<double> carriedFormats(const HostFeatures &host) const;

    struct Limit {
        GLenum pname;
        std::vector<double> numbers;
    };
    static std::vector<Limit> limitsOf(const EsBlock &device);

    std::vector<Limit> m_limits; // sorted by pname
};
