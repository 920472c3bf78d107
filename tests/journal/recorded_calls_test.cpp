#include "journal/recorded_calls.h"

#include <cstring>

#include <gtest/gtest.h>

#include "journal/recorded_arguments.h"

namespace {

double seen[18];

// More arguments of each class than there are registers, alternating.
double manyArguments(int a, float b, int64_t c, double d, unsigned e, float f, int g, float h, int i, float j, int k,
                     float l, int m, float n, int o, float p, float q, float r) {
    const double given[] = {double(a), b, double(c), d, double(e), f, double(g), h, double(i), j,
                            double(k), l, double(m), n, double(o), p, double(q), r};
    memcpy(seen, given, sizeof seen);
    return 0.25;
}

TEST(RecordedCalls, PassEveryArgumentAndTheResult) {
    const auto function = reinterpret_cast<gl::Function>(&manyArguments);
    const auto recorded = journal::recorded("manyArguments", function);
    EXPECT_EQ(recorded, journal::recorded("manyArguments", function)) << "one for a name and function";
    EXPECT_NE(recorded, journal::recorded("otherName", function));
    EXPECT_EQ(reinterpret_cast<decltype(&manyArguments)>(recorded)(1, 2, 1LL << 40, 4, 5u, 6, 7, 8, 9, 10, 11, 12, 13,
                                                                   14, 15, 16, 17, 18),
              0.25);
    for (int i = 0; i < 18; ++i)
        EXPECT_EQ(seen[i], i == 2 ? double(1LL << 40) : i + 1) << i;
}

TEST(RecordedArguments, AreFoundByTheirKinds) {
    struct {
        journal::SavedCall call;
        uint64_t moreOfTheStack[2];
    } saved{};
    for (size_t i = 0; i < 6; ++i)
        saved.call.integers[i] = i + 1;
    saved.call.integers[0] = 0x806F;
    saved.call.integers[5] = static_cast<uint32_t>(-6);
    const float half = 0.5f;
    memcpy(&saved.call.floats[0][0], &half, sizeof half);
    saved.call.stack[0] = 0x1234;
    saved.moreOfTheStack[0] = 0;
    const journal::RecordedArguments arguments(saved.call, "efeubiiep");
    EXPECT_EQ(arguments.text(), "GL_TEXTURE_3D, 0.5, 2, 3, 0x4, 5, -6, 0x1234, NULL");
    EXPECT_EQ(arguments.integer(7), 0x1234u);
}

} // namespace
