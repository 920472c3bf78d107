// The version, strings, extensions and limits that a context reports: from the device profile in use, limited to what
// the host supports, or from the host only. Constant once created, with the host context current.
#pragma once

#include "common/es_block.h"
#include "common/host_features.h"

#include "es_gl.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct Announcement {
    // That of a context of the version, determined once for each kind of host context.
    // host: of the current context. profileText: the result of zvSettingsProfileText; null and the empty text mean no
    // profile.
    [[nodiscard]] static std::shared_ptr<const Announcement> of(const std::shared_ptr<const HostFeatures> &host,
                                                                const char *profileText, GLint major, GLint minor);
    Announcement(const HostFeatures &host, const std::string &profileText, GLint major, GLint minor);

    // names: of extensions, separated by blanks.
    [[nodiscard]] bool hasOneOf(std::string_view names) const;

    std::string version;
    std::string shadingLanguageVersion;
    std::string vendor;
    std::string renderer;
    std::vector<std::string> extensionNames;
    std::string extensions; // separated by blanks
    std::vector<double> compressedFormats;

    // Set if the profile defines the limit; null where the host's own value applies.
    [[nodiscard]] const std::vector<double> *limit(GLenum pname) const;

    // How much of it an application may use: the value of limit(), or more than any host has where that is null.
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
