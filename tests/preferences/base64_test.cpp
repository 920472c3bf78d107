#include "preferences/base64.h"

#include <gtest/gtest.h>

#include <sstream>

#include "preferences/byte_buffers.h"

namespace {

TEST(Base64, LinesPadsAndForeignCharacters) {
    const std::string line(72, 'A');
    const auto expectBase64 = [&](const std::string &bytes, const std::string &text, bool isEncoded,
                                  const char *reason) {
        std::istringstream plain(bytes), coded(text);
        std::ostringstream encoded, decoded;
        EXPECT_TRUE(base64Decode(coded, decoded) && base64Encode(plain, encoded));
        EXPECT_EQ(decoded.str(), bytes) << reason;
        EXPECT_EQ(encoded.str() == text, isEncoded) << reason;
    };
#define BASE64(...) expectBase64(__VA_ARGS__);
#include "preferences/data/base64.def"
}

// The sum of capacity and count has 32 bits: if it wraps, nothing may be written past the buffer.
TEST(ByteBuffers, RefusesSingleCharactersAndSumsThatWrap) {
    CVectorByteWrapper buffer;
    EXPECT_EQ(buffer.sputn("aa", 2), 2);
    EXPECT_EQ(buffer.sputc('x'), std::char_traits<char>::eof());
    EXPECT_EQ(buffer.sputn("f", 0xffffffff) + buffer.sputn("f", 0x100000001), 0);
    EXPECT_EQ(buffer.bytes().size(), 2u);
}

} // namespace
