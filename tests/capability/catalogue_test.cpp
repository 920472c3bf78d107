#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>

#include "capability/extension_catalogue.h"
#include "capability/versions.h"

using namespace capability;

TEST(Versions, OnlyTheBeginningOfTheTextCounts) {
    const std::tuple<const char *, GlVersion, const char *> rows[] = {
        {"1.0", 1, "1.0"},       {"4.1 Driver 9.9", 14, "4.1"}, {"2.1driver", 8, "2.1"},
        {"4.6.0 NV", 19, "4.6"}, {"4.7", 20, "unknown"},        {"5.0", 20, "unknown"},
        {"", 20, "unknown"},     {nullptr, 0, "unknown"},       {"OpenGL ES 3.2", 20, "unknown"},
        {" 4.1", 20, "unknown"},
    };
    for (const auto &[text, version, name] : rows) {
        EXPECT_EQ(parseGlVersion(text), version) << name;
        EXPECT_STREQ(glVersionName(version), name);
    }
}

TEST(Versions, ShadingLanguageHasNamesOfTwoLengths) {
    const std::tuple<const char *, GlslVersion, const char *, const char *> rows[] = {
        {"3.30 via driver", 6, "330", "GLSL 3.30"},
        {"4.60", 13, "460", "GLSL 4.60"},
        {"3.40", 14, "<Failed to query GLSL version>", "<Failed to query GLSL version>"}, // was never made
        {nullptr, 0, "<Failed to query GLSL version>", "<Failed to query GLSL version>"},
    };
    for (const auto &[text, version, shortName, name] : rows) {
        EXPECT_EQ(parseGlslVersion(text), version);
        EXPECT_STREQ(glslVersionName(version, true), shortName);
        EXPECT_STREQ(glslVersionName(version, false), name);
    }
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
    EXPECT_EQ(hostExtensionFromName("GL_WGL_ARB_extensions_string"),
              hostExtensionFromName("WGL_ARB_extensions_string"));
    for (const char *unknown : {"", "GL_", "ARB_imaging", "GL_ARB_imagin", "gl_ARB_imaging"})
        EXPECT_EQ(hostExtensionFromName(unknown), 0) << unknown;
    EXPECT_EQ(hostExtensionFromName(nullptr), 0);
    EXPECT_STREQ(hostExtensionName(0), "<unknown extension>");
    EXPECT_STREQ(hostExtensionName(643), "<unknown extension>");
}

TEST(Extensions, EsNamesAreStoredBare) {
    for (EsExtension id = 1; id <= 127; ++id) {
        EXPECT_EQ(esExtensionFromName(esExtensionName(id, false)), id);
        EXPECT_EQ(esExtensionFromName(esExtensionName(id, true)), id);
    }
    EXPECT_EQ(esExtensionFromName("APPLE_sync"), 2);
    EXPECT_STREQ(esExtensionName(2, true), "GL_APPLE_sync");
    EXPECT_STREQ(esExtensionName(128, true), "<unknown extension>");
    EXPECT_EQ(esExtensionFromName(nullptr), 0);
}

TEST(Extensions, EsVersionsHaveTheirRanges) {
    const std::tuple<EsExtensionList, int32_t, EsExtension, EsExtension> rows[] = {
        // size, the one at 49, the last one
        {EsExtensionList::es1_1, 68, 49, 68},
        {EsExtensionList::es2_0, 80, 69, 100},
        {EsExtensionList::es3_0, 92, 69, 112},
        {EsExtensionList::es3_1, 107, 69, 127},
    };
    for (const auto &[list, size, atFortyNine, last] : rows) {
        const std::pair<int32_t, EsExtension> places[] = {
            {0, 0}, {1, 1}, {49, atFortyNine}, {size, last}, {size + 1, 0}};
        for (const auto &[position, expected] : places)
            EXPECT_EQ(esExtensionsFor(list, position), expected) << position;
    }
}
