// What a device profile says of one ES version: the answers that the device gives to an application.
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
    // The numbers of each element, under its name. An element that repeats adds to the list; one with children has
    // theirs, in order.
    std::map<std::string, std::vector<double>, std::less<>> limits;
    // A desktop's block: what it lists no extension or number for is the host's, where a device has nothing.
    bool isDesktop = false;

    // Whether the block decides which extensions there are.
    [[nodiscard]] bool listsExtensions() const { return !isDesktop || !extensionNames.empty(); }

    // The first number of an element, or nothing.
    [[nodiscard]] std::optional<double> limit(std::string_view element) const;
};

// The block for a context of that version: of the blocks of its major version the highest that is not above it, else
// the lowest. Nothing for an empty or malformed text and where the profile has no block of the major version; the host
// alone decides then.
[[nodiscard]] std::optional<EsBlock> readEsBlock(std::string_view profileText, int major, int minor);
