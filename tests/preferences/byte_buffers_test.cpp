#include "preferences/byte_buffers.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The sum of capacity and count is one of 32 bits: a wrapped one must not be written behind.
TEST(ByteBuffers, RefusesSingleCharactersAndSumsThatWrap) {
    CVectorByteWrapper buffer;
    EXPECT_EQ(buffer.sputn("aa", 2), 2);
    EXPECT_EQ(buffer.sputc('x'), std::char_traits<char>::eof());
    EXPECT_EQ(buffer.sputn("f", 0xffffffff) + buffer.sputn("f", 0x100000001), 0);
    EXPECT_EQ(buffer.bytes().size(), 2u);
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
