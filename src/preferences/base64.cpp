#include "preferences/base64.h"

#include <array>

namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char pad = '=';
constexpr uint32_t groupsPerLine = 18;
constexpr size_t blockSize = 65536;

constexpr int8_t noSextet = -1;
constexpr std::array<int8_t, 256> sextets = [] {
    std::array<int8_t, 256> table{};
    table.fill(noSextet);
    for (size_t i = 0; i < alphabet.size(); ++i) {
        table[static_cast<uint8_t>(alphabet[i])] = static_cast<int8_t>(i);
    }
    return table;
}();

int8_t sextetOf(char character) {
    return sextets[static_cast<uint8_t>(character)];
}

void put(uint32_t sextet, std::string &text) {
    text += alphabet[sextet];
}

// Passes the source to step in blocks and writes the result of each.
template <typename Step>
bool codeBlocks(std::istream &source, std::ostream &sink, size_t roomPerBlock, Step step) {
    std::string block(blockSize, '\0');
    std::string result;
    result.reserve(roomPerBlock);
    do {
        source.read(block.data(), static_cast<std::streamsize>(block.size()));
        result.clear();
        step(std::string_view(block.data(), static_cast<size_t>(source.gcount())), result);
        sink.write(result.data(), static_cast<std::streamsize>(result.size()));
    } while (source.good() && sink.good());
    return source.eof() && !source.bad() && sink.good();
}

} // namespace

void Base64Encoder::encode(std::string_view bytes, std::string &text) {
    for (const char character : bytes) {
        const uint32_t byte = static_cast<uint8_t>(character);
        switch (m_phase) {
        case 0:
            put(byte >> 2, text);
            m_held = (byte & 0x03) << 4;
            break;
        case 1:
            put(m_held | byte >> 4, text);
            m_held = (byte & 0x0f) << 2;
            break;
        default:
            put(m_held | byte >> 6, text);
            put(byte & 0x3f, text);
            if (++m_groupsOnLine == groupsPerLine) {
                text += '\n';
                m_groupsOnLine = 0;
            }
        }
        m_phase = (m_phase + 1) % 3;
    }
}

void Base64Encoder::finish(std::string &text) {
    if (m_phase != 0) {
        put(m_held, text);
        text.append(3 - m_phase, pad);
    }
    text += '\n';
    *this = {};
}

void Base64Decoder::decode(std::string_view text, std::string &bytes) {
    for (const char character : text) {
        const int8_t found = sextetOf(character);
        if (found == noSextet) continue;
        const uint32_t sextet = static_cast<uint8_t>(found);
        // The phase is also the number of bit pairs that the group has beyond the last whole byte.
        const uint32_t bitsForOpenByte = m_phase * 2;
        if (m_phase > 0) bytes += static_cast<char>(m_byte | sextet >> (6 - bitsForOpenByte));
        m_byte = sextet << (bitsForOpenByte + 2) & 0xff;
        m_phase = (m_phase + 1) % 4;
    }
}

bool isBase64Character(char character) {
    return sextetOf(character) != noSextet;
}

bool base64Encode(std::istream &source, std::ostream &sink) {
    Base64Encoder encoder;
    const bool isWhole = codeBlocks(source, sink, blockSize * 2,
                                    [&](std::string_view bytes, std::string &text) { encoder.encode(bytes, text); });
    if (!isWhole) return false;
    std::string rest;
    encoder.finish(rest);
    sink.write(rest.data(), static_cast<std::streamsize>(rest.size()));
    return sink.good();
}

bool base64Decode(std::istream &source, std::ostream &sink) {
    Base64Decoder decoder;
    return codeBlocks(source, sink, blockSize,
                      [&](std::string_view text, std::string &bytes) { decoder.decode(text, bytes); });
}
