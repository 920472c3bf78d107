// The operations list as every implementation has to keep it: data/promises.def, built once for each of them.
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

// One output at a time.
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
    Buffer buffer{operations.createPixelBuffer(0x1908, 0xDE1, 2, 16, 8)};
    const ContextContainer *const firstContext = first.get(); // also once it was released
    SavedBinding *saved = nullptr;

    void bind(const Context &context) const {
        EXPECT_TRUE(operations.makeCurrent(context.get()));
        expectCurrent(context.get());
    }
    void expectCurrent(const ContextContainer *context) const { EXPECT_EQ(operations.currentContext(), context); }
    void expectView(const View &wanted) const { EXPECT_EQ(operations.view(first.get()), wanted); }
};

const std::map<std::string, void (*)(Bench &)> steps = {
    {"refuse a format", [](Bench &b) { b.host.refuseNext("createPixelFormat"); }},
    {"no format", [](Bench &) { EXPECT_EQ(format(core), nullptr); }},
    {"no deep format",
     [](Bench &) {
         EXPECT_EQ(format({ColorSize, 24, DepthSize, 1000, 0}), nullptr);
     }},
    {"unknown attribute", [](Bench &) { EXPECT_EQ(operations.pixelFormatValue(format(core).get(), 4712), 0); }},
    {"derived format",
     [](Bench &) { EXPECT_EQ(operations.pixelFormatValue(derived(core, legacy).get(), OpenGLProfile), 0x1000); }},
    {"release no format", [](Bench &) { operations.releasePixelFormat(nullptr); }},
    {"release no buffer", [](Bench &) { operations.releasePixelBuffer(nullptr); }},
    {"both contexts", [](Bench &b) { EXPECT_TRUE(b.first && b.second); }},
    {"shared context", [](Bench &b) { EXPECT_NE(context(core, b.first.get()), nullptr); }},
    {"refuse a context", [](Bench &b) { b.host.refuseNext("createContext"); }},
    {"no context", [](Bench &) { EXPECT_EQ(context(core), nullptr); }},

    {"bind first", [](Bench &b) { b.bind(b.first); }},
    {"bind second", [](Bench &b) { b.bind(b.second); }},
    {"bind foreign", [](Bench &b) { b.host.makeForeignCurrent(); }},
    {"clear", [](Bench &) { operations.clearCurrentContext(); }},
    {"first current", [](Bench &b) { b.expectCurrent(b.firstContext); }},
    {"none current", [](Bench &b) { b.expectCurrent(nullptr); }},
    {"none current elsewhere", [](Bench &b) { std::thread([&] { b.expectCurrent(nullptr); }).join(); }},
    {"foreign current", [](Bench &b) { EXPECT_TRUE(b.host.isForeignCurrent()); }},
    {"release first", [](Bench &b) { b.first.reset(); }},

    {"attach view", [](Bench &b) { EXPECT_TRUE(operations.setView(b.first.get(), b.view)); }},
    {"attach nothing", [](Bench &b) { EXPECT_TRUE(operations.setView(b.first.get(), {})); }},
    {"no bad view", [](Bench &b) { EXPECT_FALSE(operations.setView(b.first.get(), b.host.badView())); }},
    {"attach buffer", [](Bench &b) { EXPECT_TRUE(operations.setPixelBuffer(b.first.get(), b.buffer.get())); }},
    {"attach null buffer", [](Bench &b) { EXPECT_TRUE(operations.setPixelBuffer(b.first.get(), nullptr)); }},
    {"has view", [](Bench &b) { b.expectView(b.view); }},
    {"has nothing", [](Bench &b) { b.expectView({}); }},
    {"observe", [](Bench &b) { operations.observeViewFrame(b.first.get(), b.view); }},
    {"resize", [](Bench &b) { b.host.resizeView(b.view, 70, 50); }},
    {"flush", [](Bench &b) { operations.flushBuffer(b.first.get()); }},
    {"set interval 7", [](Bench &b) { operations.setSwapInterval(b.first.get(), 7); }},
    {"set interval -1", [](Bench &b) { operations.setSwapInterval(b.first.get(), -1); }},

    {"save", [](Bench &b) { b.saved = operations.saveBinding(); }},
    {"save nothing", [](Bench &) { EXPECT_EQ(operations.saveBinding(), nullptr); }},
    {"restore", [](Bench &b) { operations.restoreBinding(b.saved); }},
    {"restore nothing", [](Bench &) { operations.restoreBinding(nullptr); }},

    {"refuse a buffer", [](Bench &b) { b.host.refuseNext("createPixelBuffer"); }},
    {"no buffer", [](Bench &) { EXPECT_EQ(operations.createPixelBuffer(0, 0, 0, 4, 4), nullptr); }},
    {"no flat buffer", [](Bench &) { EXPECT_EQ(operations.createPixelBuffer(0, 0, 0, 0, 4), nullptr); }},
    {"no negative buffer", [](Bench &) { EXPECT_EQ(operations.createPixelBuffer(0, 0, 0, 4, -1), nullptr); }},
    {"buffer size", [](Bench &b) { EXPECT_EQ(sizeOf(operations.pixelBufferSize, b.buffer.get()), Size(16, 8)); }},
    {"size of no buffer", [](Bench &) { EXPECT_EQ(sizeOf(operations.pixelBufferSize, nullptr), untouched); }},
    {"first size", [](Bench &b) { EXPECT_EQ(sizeOf(operations.viewSize, b.view), Size(64, 48)); }},
    {"second size", [](Bench &b) { EXPECT_EQ(sizeOf(operations.viewSize, b.view), Size(70, 50)); }},
    {"size of no view", [](Bench &) { EXPECT_EQ(sizeOf(operations.viewSize, View{}), untouched); }},
    {"size of a bad view", [](Bench &b) { EXPECT_EQ(sizeOf(operations.viewSize, b.host.badView()), untouched); }},
    {"title", [](Bench &b) { EXPECT_EQ(operations.viewTitle(b.view), title); }},
    {"title of no view", [](Bench &) { EXPECT_EQ(operations.viewTitle({}), ""); }},
    {"no title", [](Bench &b) { EXPECT_EQ(operations.viewTitle(b.host.makeView(8, 8, nullptr)), ""); }},
    {"title of a bad view", [](Bench &b) { EXPECT_EQ(operations.viewTitle(b.host.badView()), ""); }},
};

// The steps are words between commas.
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
