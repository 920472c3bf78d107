#include "preferences/byte_buffers.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Growing by the capacity leaves zero bytes behind a block once capacity and size differ.
TEST(ByteBuffers, WritesBlocksWhereCapacityPutsThem) {
    CVectorByteWrapper buffer;
    for (const char *block : {"aa", "bb", "cc", "dd", "ee"}) {
        EXPECT_EQ(buffer.sputn(block, 2), 2);
    }
    const std::string expected("aabbccdd\0\0ee\0\0\0\0\0\0", 18);
    const auto &bytes = buffer.bytes();
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), expected);
    EXPECT_EQ(buffer.sputc('x'), std::char_traits<char>::eof()) << "single characters are refused";
    // The sum of capacity and count is one of 32 bits: a wrapped one must not be written behind.
    EXPECT_EQ(buffer.sputn("f", 0xffffffff) + buffer.sputn("f", 0x100000001), 0);
    EXPECT_EQ(bytes.size(), expected.size());
}

TEST(ByteBuffers, ReadsAndStepsBack) {
    const uint8_t bytes[] = {0x00, 0xff, 0x41};
    CImmutableByteWrapper buffer(bytes, bytes + 3);
    constexpr auto eof = std::char_traits<char>::eof();
    EXPECT_EQ(buffer.sungetc(), eof) << "at the beginning";
    EXPECT_EQ(buffer.sbumpc(), 0x00);
    EXPECT_EQ(buffer.sbumpc(), 0xff) << "not the end of file";
    EXPECT_EQ(buffer.sputbackc('\x41'), eof) << "another character than the one before";
    EXPECT_EQ(buffer.sungetc(), 0xff);
    char read[4];
    EXPECT_EQ(buffer.sgetn(read, 4), 2);
}

} // namespace
