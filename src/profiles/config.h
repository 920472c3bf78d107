// One EGL config: a map from attribute to value, and its host format, which all configs of a list share unless each has
// one of its own.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "host/platform/operations.h"
#include "profiles/choice_account.h"

namespace egl {

namespace osx {

// The host pixel format of a config list, or of one config. It is never released: contexts of the process may still use
// it.
class Config {
public:
    explicit Config(host::platform::PixelFormat *format, bool isOwn = false) : m_format(format), m_isOwn(isOwn) {}
    [[nodiscard]] host::platform::PixelFormat *format() const { return m_format; } // may be null
    // The format for surfaces, if it differs; otherwise null: surfaces are drawn to with the context's format.
    [[nodiscard]] host::platform::PixelFormat *surfaceFormat() const { return m_isOwn ? m_format : nullptr; }

private:
    host::platform::PixelFormat *m_format;
    bool m_isOwn; // used by one config only
};

} // namespace osx

// A value type. Attribute lists are pairs ended by EGL_NONE; a null list is an empty one.
class Config {
public:
    // The defaults that every config starts from, without a host format.
    Config();
    // The defaults, then each pair of the list; a later pair replaces an earlier one.
    Config(std::shared_ptr<osx::Config> hostConfig, const int32_t *attributes);

    // Equal attributes and the identical host format.
    bool operator==(const Config &other) const;
    // By EGL_CONFIG_ID; an absent id counts as 0.
    bool operator<(const Config &other) const;

    // False, with value untouched, when the config lacks the attribute.
    [[nodiscard]] bool getAttribute(int32_t attribute, int32_t *value) const;
    [[nodiscard]] int32_t attributeOr0(int32_t attribute) const;
    void setAttribute(int32_t attribute, int32_t value);
    void setAttributes(const int32_t *attributes);
    // Pairs in attribute order, then one EGL_NONE.
    [[nodiscard]] std::vector<int32_t> toAttributeList() const;
    [[nodiscard]] const std::shared_ptr<osx::Config> &hostConfig() const { return m_hostConfig; }

    // Whether the config matches the application's list; the rules are in config_match.cpp.
    [[nodiscard]] bool matches(const int32_t *attributes) const { return !findFallOut(attributes); }
    // The first pair of the list that the config does not match. Nothing for a config that matches.
    [[nodiscard]] std::optional<FallOut> findFallOut(const int32_t *attributes) const;
    // major: the ES version 1, 2 or 3. Any other is unsupported.
    [[nodiscard]] bool supportsClientVersion(int32_t major) const;

private:
    std::map<int32_t, int32_t> m_attributes;
    std::shared_ptr<osx::Config> m_hostConfig;
};

// Whether eglChooseConfig accepts the list at all.
[[nodiscard]] bool validateAttributeList(const int32_t *attributes);

} // namespace egl
