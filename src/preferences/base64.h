// Base64 as the preferences file holds it: lines of 72 characters, each ended by a line feed, and one more line feed
// at the end of all. Both coders keep their state between blocks, so that text may come in pieces of any size.
#pragma once

#include <cstdint>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

class Base64Encoder {
public:
    void encode(std::string_view bytes, std::string &text);
    // Pads the group that is open and ends the last line.
    void finish(std::string &text);

private:
    uint32_t m_phase = 0; // bytes of the open group
    uint32_t m_held = 0;  // bits of the last byte that are not written yet, in their place in the next character
    uint32_t m_groupsOnLine = 0;
};

// Skips every character outside the alphabet, the pad included. A last group that is cut gives no byte for its rest.
class Base64Decoder {
public:
    void decode(std::string_view text, std::string &bytes);

private:
    uint32_t m_phase = 0; // characters of the open group
    uint32_t m_byte = 0;  // the byte under construction
};

[[nodiscard]] bool isBase64Character(char character);

// Code the whole source into the sink, block by block. False when a stream fails.
[[nodiscard]] bool base64Encode(std::istream &source, std::ostream &sink);
[[nodiscard]] bool base64Decode(std::istream &source, std::ostream &sink);
