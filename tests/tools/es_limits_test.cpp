#include <gtest/gtest.h>

#include <set>

#include "tools/command/es_limits.h"

TEST(EsLimits, HaveEachElementThatBackEndsRead) {
    std::set<std::string> elements;
    for (const EsLimit &limit : esLimits()) {
        EXPECT_NO_THROW((void)enumerantOf(limit));
        elements.insert(elementOf(limit));
    }
    const char *const read[] = {
#define LIMIT(name, element, ...) #element,
#include "backends/gles2/announcement/limits.def"
#undef LIMIT
#define LIMIT(name, element, ...) element,
#include "backends/gles1/announcement/limits.def"
#undef LIMIT
    };
    for (const char *element : read)
        EXPECT_TRUE(elements.contains(element)) << element;
}
