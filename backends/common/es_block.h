// The part of a device profile for one ES version: the strings and limits that the device reports.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct EsBlock {
    std::string vendor;                      // of the profile; empty when it has none
    std::string renderer;                    // of the profile; empty when it has none
    std::vector<std::string> extensionNames; // in the profile's order, always with "GL_" in front, each once
    // The numbers of each element, by its name. Repeated elements add to the list. An element with children has the
    // children's numbers, in order.
    std::map<std::string, std::vector<double>, std::less<>> limits;
    // Whether the block describes a desktop: extensions and numbers that it does not list are the host's, where a
    // device lacks them.
    bool isDesktop = false;

    // Whether the block defines the extensions.
    [[nodiscard]] bool listsExtensions() const { return !isDesktop || !extensionNames.empty(); }

    // The first number of an element, or nothing.
    [[nodiscard]] std::optional<double> limit(std::string_view element) const;
};

// The block for a context of that version: of the blocks of its major version the highest that is not above it, else
// the lowest. Nothing for an empty or malformed text, or a profile without a block of the major version; the host's
// values apply then.
[[nodiscard]] std::optional<EsBlock> readEsBlock(std::string_view profileText, int major, int minor);
