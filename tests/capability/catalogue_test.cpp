#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "capability/extension_catalogue.h"
#include "capability/versions.h"

using namespace capability;

TEST(Versions, OnlyTheBeginningOfTheTextCounts) {
#define GL(text, version, name)                                                                                        \
    EXPECT_EQ(parseGlVersion(text), version) << name;                                                                  \
    EXPECT_STREQ(glVersionName(version), name);
#define GLSL(text, version, shortName, name)                                                                           \
    EXPECT_EQ(parseGlslVersion(text), version) << name;                                                                \
    EXPECT_STREQ(glslVersionName(version, true), shortName);                                                           \
    EXPECT_STREQ(glslVersionName(version, false), name);
#include "capability/data/versions.def"
}

TEST(Extensions, BothFormsOfANameAreKnown) {
    ASSERT_EQ(hostExtensionCount, 642);
    std::set<std::string> names;
    for (HostExtension id = 1; id <= hostExtensionCount; ++id) {
        const std::string name = hostExtensionName(id);
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_EQ(hostExtensionFromName(name.c_str()), id);
        EXPECT_EQ(hostExtensionFromName(("GL_" + name).c_str()), id);
    }
    EXPECT_STREQ(hostExtensionName(1), "GL_ARB_imaging");
    EXPECT_EQ(hostExtensionFromName("GL_GL_NV_internalformat_sample_query"), 642);
    for (const char *unknown : {"", "GL_", "ARB_imaging", "GL_ARB_imagin", "gl_ARB_imaging"})
        EXPECT_EQ(hostExtensionFromName(unknown), 0) << unknown;
    EXPECT_EQ(hostExtensionFromName(nullptr) + esExtensionFromName(nullptr), 0);
    for (const HostExtension unknown : {0, 643})
        EXPECT_STREQ(hostExtensionName(unknown), "<unknown extension>");
    for (EsExtension id = 1; id <= 127; ++id) {
        EXPECT_EQ(esExtensionFromName(esExtensionName(id, false)), id);
        EXPECT_EQ(esExtensionFromName(esExtensionName(id, true)), id);
    }
    EXPECT_STREQ(esExtensionName(2, true), "GL_APPLE_sync");
    EXPECT_STREQ(esExtensionName(128, true), "<unknown extension>");
}

TEST(Extensions, EsVersionsHaveTheirRanges) {
    const auto expectRanges = [&](EsExtensionList list, int32_t size, EsExtension atFortyNine, EsExtension last) {
        const std::vector<EsExtension> expected = {0, 1, atFortyNine, last, 0};
        std::vector<EsExtension> found;
        for (const int32_t position : {0, 1, 49, size, size + 1})
            found.push_back(esExtensionsFor(list, position));
        EXPECT_EQ(found, expected) << size;
    };
#define RANGES(...) expectRanges(__VA_ARGS__);
#include "capability/data/es_ranges.def"
}
