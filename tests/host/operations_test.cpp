// The promises of the operations list, data/promises.def, built once for each implementation.
#include "host/operations_host.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <thread>
#include <vector>

namespace {

using namespace host::platform;

using List = std::vector<uint32_t>;
using Size = std::pair<int32_t, int32_t>;

const List core = {OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, DepthSize, 24, 0};
const List legacy = {OpenGLProfile, profileLegacy, DoubleBuffer, ColorSize, 24, DepthSize, 24, 0};
const char *const title = "Gr\u00f6\u00dfe \U0001f4d0";
constexpr Size untouched = {-1, -1};

Format format(const List &list) {
    return Format(operations.createPixelFormat(0, list.data()));
}

Format derived(const List &from, const List &list) {
    return Format(operations.derivePixelFormat(format(from).get(), list.data()));
}

Context context(const List &list, ContextContainer *share = nullptr) {
    return Context(operations.createContext(format(list).get(), share));
}

// Queries one output at a time.
template <typename Object>
Size sizeOf(void (*ask)(Object, int32_t *, int32_t *), std::type_identity_t<Object> object) {
    Size size = untouched;
    ask(object, &size.first, nullptr);
    ask(object, nullptr, &size.second);
    return size;
}

struct Bench {
    OperationsHost &host;
    Context first = context(core), second = context(legacy);
    View view = host.makeView(64, 48, title);
    Buffer buffer{operations.createPixelBuffer(0x1908, 0xDE1, 2, 16, 8, nullptr)};
    const ContextContainer *const firstContext = first.get(); // also after it was released
    SavedBinding *saved = nullptr;

    void bind(const Context &context) const {
        EXPECT_TRUE(operations.makeCurrent(context.get()));
        expectCurrent(context.get());
    }
    void expectCurrent(const ContextContainer *context) const { EXPECT_EQ(operations.currentContext(), context); }
    void expectView(const View &wanted) const { EXPECT_EQ(operations.view(first.get()), wanted); }
};

const std::map<std::string, void (*)(Bench &)> steps = {
#define STEP(name, ...) {name, []([[maybe_unused]] Bench &b) { __VA_ARGS__; }},
#include "host/data/steps.def"
};

// The steps are separated by commas.
void keep(OperationsHost &host, const std::string &row, unsigned on, const char *words) {
    if (!(on & host.implementation())) return;
    SCOPED_TRACE(row);
    Bench bench{host};
    std::istringstream stream(words);
    for (std::string step; std::getline(stream >> std::ws, step, ',');)
        steps.at(step)(bench);
    operations.clearCurrentContext();
}

void expectAtLeast(const List &list) {
    const auto chosen = format(list);
    ASSERT_NE(chosen, nullptr) << testing::PrintToString(list);
    for (size_t i = 0; list[i]; ++i) {
        const uint32_t attribute = list[i];
        const int32_t value = attribute == DoubleBuffer ? 1 : static_cast<int32_t>(list[++i]);
        const bool isNear = attribute == SampleBuffers || attribute == Samples;
        EXPECT_TRUE(isNear || operations.pixelFormatValue(chosen.get(), attribute) >= value) << attribute;
    }
}

TEST(Operations, KeepTheirPromises) {
    const auto host = makeOperationsHost();
#define PROMISE(operation, precondition, promise, on, words)                                                           \
    keep(*host, operation ", " precondition ": " promise, on, words);
#include "host/data/promises.def"
#define FORMAT(...) expectAtLeast({__VA_ARGS__});
#include "host/data/formats.def"
}

} // namespace
