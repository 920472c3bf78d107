// Base64 in the format of the preferences file: lines of 72 characters, each ended by a line feed, and one more line
// feed at the end. Both coders keep their state between blocks, so that text may come in pieces of any size.
#pragma once

#include <cstdint>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

class Base64Encoder {
public:
    void encode(std::string_view bytes, std::string &text);
    // Pads the open group and ends the last line.
    void finish(std::string &text);

private:
    uint32_t m_phase = 0; // bytes of the open group
    uint32_t m_held = 0;  // the unwritten bits of the last byte, shifted to their place in the next character
    uint32_t m_groupsOnLine = 0;
};

// Skips every character outside the alphabet, padding included. The rest of an incomplete last group is dropped.
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
