#include "foundation/string.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace {

using namespace std::string_literals;

void expectString(const CKZRTString &string, const std::string &text, uint64_t capacity) {
    EXPECT_EQ(std::string(string.data(), string.length()), text);
    EXPECT_EQ(string.capacity(), capacity) << text;
    EXPECT_EQ(string.data()[string.length()], '\0');
}

TEST(String, BufferFitsAndIsKeptWhileItIsLongEnough) {
    expectString(CKZRTString(nullptr, 3), "", 1);
    expectString(CKZRTString("a\0b", 3), "a\0b"s, 4);
    CKZRTString string("abc", 2);
    string.assign("xyz"); // as long as the capacity
    expectString(string, "xyz", 4);
    string.assign("q");
    expectString(string, "q", 4);
    string.append("rst");
    expectString(string, "qrst", 5);
    string.clear();
    expectString(string, "", 1);
    expectString(CKZRTString("dir/") + "file", "dir/file", 9);
    expectString(CKZRTString("dir/").concat(static_cast<const char *>(nullptr)), "dir/", 5);
}

TEST(String, SourceMayLieInTheStringItself) {
    CKZRTString string("abcd");
    string.append(string.data() + 1, 2);
    string.append(string);
    expectString(string, "abcdbcabcdbc", 13);
    string.assign(string.data() + 2, 4);
    string = *&string;
    expectString(string, "cdbc", 13);
}

TEST(String, Erase) {
    const std::tuple<uint64_t, uint64_t, std::string, const char *> rows[] = {
        {1, 2, "ade\0e"s, "a cut inside leaves the length field"},
        {1, 4, "a", "a cut that ends at the end shortens"},
        {7, CKZRTString::npos, "abcde\0\0"s, "behind the end the text is lengthened"},
        {1, CKZRTString::npos - 1, "a", "position and count wrap"},
        {CKZRTString::npos, 3, "abcde", "no memory for so long a text"},
    };
    for (const auto &[position, count, text, reason] : rows) {
        SCOPED_TRACE(reason);
        CKZRTString string("abcde");
        string.erase(position, count);
        expectString(string, text, text.size() > 5 ? 8 : 6);
    }
}

} // namespace
