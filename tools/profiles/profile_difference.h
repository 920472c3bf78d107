// The differences between two profiles, as programs would see them.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tools/profiles/named_profile.h"

struct ValueDifference {
    std::string name;
    std::string a, b; // empty if a profile does not have it

    bool operator==(const ValueDifference &) const = default;
};

struct OnlyIn {
    std::vector<std::string> a, b;
    [[nodiscard]] bool isNone() const { return a.empty() && b.empty(); }
};

struct ConfigDifference {
    struct Renumbered {
        int32_t a, b; // ids of configs with equal values
    };
    struct Changed {
        int32_t id;
        std::vector<ValueDifference> attributes;
    };

    size_t sameCount = 0;
    std::vector<Renumbered> renumbered;
    std::vector<Changed> changed; // same id, other values
    std::vector<egl::Config> onlyInA, onlyInB;

    [[nodiscard]] bool isNone() const {
        return renumbered.empty() && changed.empty() && onlyInA.empty() && onlyInB.empty();
    }
};

struct EsDifference {
    capability::EsVersion version; // that both profiles have
    OnlyIn extensions;
    std::vector<ValueDifference> limits;
    std::vector<std::pair<std::string, OnlyIn>> lists; // repeated elements, such as formats

    [[nodiscard]] bool isNone() const { return extensions.isNone() && limits.empty() && lists.empty(); }
};

struct ProfileDifference {
    std::string a, b; // the names
    std::vector<ValueDifference> identity;
    OnlyIn esVersions;
    ConfigDifference configs;
    std::vector<EsDifference> es; // versions without a difference are omitted

    [[nodiscard]] bool isNone() const {
        return identity.empty() && esVersions.isNone() && configs.isNone() && es.empty();
    }
};

// A config is matched with one of the same id and values, else one of the same values, else one of the same id.
[[nodiscard]] ProfileDifference compareProfiles(const NamedProfile &a, const NamedProfile &b);

[[nodiscard]] std::string differenceAsText(const ProfileDifference &difference);
[[nodiscard]] std::string differenceAsJson(const ProfileDifference &difference);
