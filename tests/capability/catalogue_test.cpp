#include <gtest/gtest.h>

#include <set>
#include <string>

#include "capability/extension_catalogue.h"
#include "capability/versions.h"

using namespace capability;

TEST(Versions, OnlyTheBeginningOfTheTextCounts) {
    const struct {
        const char *text;
        GlVersion version;
        const char *name;
    } rows[] = {
        {"1.0", 1, "1.0"},       {"4.1 Driver 9.9", 14, "4.1"}, {"2.1driver", 8, "2.1"},
        {"4.6.0 NV", 19, "4.6"}, {"4.7", 20, "unknown"},        {"5.0", 20, "unknown"},
        {"", 20, "unknown"},     {nullptr, 0, "unknown"},       {"OpenGL ES 3.2", 20, "unknown"},
        {" 4.1", 20, "unknown"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(parseGlVersion(row.text), row.version) << row.name;
        EXPECT_STREQ(glVersionName(row.version), row.name);
    }
}

TEST(Versions, ShadingLanguageHasNamesOfTwoLengths) {
    const char *const failed = "<Failed to query GLSL version>";
    EXPECT_EQ(parseGlslVersion("3.30 via driver"), 6);
    EXPECT_EQ(parseGlslVersion("3.40"), 14) << "was never made";
    EXPECT_EQ(parseGlslVersion("4.60"), 13);
    EXPECT_EQ(parseGlslVersion(nullptr), 0);
    EXPECT_STREQ(glslVersionName(6, true), "330");
    EXPECT_STREQ(glslVersionName(13, false), "GLSL 4.60");
    EXPECT_STREQ(glslVersionName(14, true), failed);
    EXPECT_STREQ(glslVersionName(0, false), failed);
}

TEST(Versions, EsVersionsComeFromTheContext) {
    const struct {
        int32_t major, minor;
        EsVersion version;
        const char *name;
    } rows[] = {
        {1, 7, 1, "1.1"},
        {2, 1, 2, "2.0"},
        {3, 0, 3, "3.0"},
        {3, 2, 5, "3.2"},
        {3, 3, 0, "<Failed to query OpenGL ES version>"},
        {3, -1, 0, "<Failed to query OpenGL ES version>"},
        {4, 0, 0, "<Failed to query OpenGL ES version>"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(esVersionFromContext(row.major, row.minor), row.version) << row.major << "." << row.minor;
        EXPECT_STREQ(esVersionName(row.version), row.name);
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
    const struct {
        EsExtensionList list;
        int32_t size;
        EsExtension atFortyNine, last;
    } rows[] = {
        {EsExtensionList::es1_1, 68, 49, 68},
        {EsExtensionList::es2_0, 80, 69, 100},
        {EsExtensionList::es3_0, 92, 69, 112},
        {EsExtensionList::es3_1, 107, 69, 127},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(esExtensionsFor(row.list, 0), 0);
        EXPECT_EQ(esExtensionsFor(row.list, 1), 1);
        EXPECT_EQ(esExtensionsFor(row.list, 49), row.atFortyNine);
        EXPECT_EQ(esExtensionsFor(row.list, row.size), row.last);
        EXPECT_EQ(esExtensionsFor(row.list, row.size + 1), 0);
    }
}
