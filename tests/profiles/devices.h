// What the tests know of the embedded profiles, in their order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <set>

struct EmbeddedDevice {
    const char *name, *file;
    size_t configs;
    std::set<int32_t> majors;
};

// Names the case in the list of tests.
inline std::ostream &operator<<(std::ostream &stream, const EmbeddedDevice &device) {
    return stream << device.file;
}

inline const EmbeddedDevice embeddedDevices[] = {
    {"Amazon Kindle Fire", "amazon_kindle_fire", 36, {1, 2}},
    {"Amazon Kindle Fire HD", "amazon_kindle_fire_hd", 33, {1, 2}},
    {"Dell Venue 8 3840", "dell_venue_8_3840", 28, {1, 2, 3}},
    {"Google Galaxy Nexus", "google_galaxy_nexus", 22, {1, 2}},
    {"Google Nexus Player", "google_nexus_player", 28, {1, 2, 3}},
    {"Huawei Ascend P1", "huawei_ascend_p1", 33, {1, 2}},
    {"Lenovo A750", "lenovo_a750", 36, {1, 2}},
    {"Lenovo K900", "lenovo_k900", 34, {1, 2}},
    {"Onda V972", "onda_v972", 22, {1, 2}},
    {"Generic Tarnlight T330", "generic_tarnlight_t330", 22, {1, 3}},
    {"Generic Tarnlight T210", "generic_tarnlight_t210", 10, {1, 2}},
    {"Samsung GT-I9500 Galaxy S4", "samsung_gt_i9500_galaxy_s4", 22, {1, 2}},
    {"TI PandaBoard", "ti_pandaboard", 10, {1, 2}},
};
