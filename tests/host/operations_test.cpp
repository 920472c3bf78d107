// The operations list as every implementation has to keep it: one row a promise. Built once for each of them.
#include "host/operations_host.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

using namespace host::platform;

using List = std::vector<uint32_t>;

const List core = {OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, DepthSize, 24, 0};
const List legacy = {OpenGLProfile, profileLegacy, DoubleBuffer, ColorSize, 24, DepthSize, 24, 0};

// What a row starts from: two contexts with nothing attached, a view, a buffer, and nothing current.
struct Bench {
    OperationsHost &host;
    Context first{operations.createContext(format(core).get(), nullptr)};
    Context second{operations.createContext(format(legacy).get(), nullptr)};
    View view = host.makeView(64, 48, "Gr\u00f6\u00dfe \U0001f4d0");
    Buffer buffer{operations.createPixelBuffer(0x1908, 0xDE1, 2, 16, 8)};

    static Format format(const List &list) { return Format(operations.createPixelFormat(0, list.data())); }
    [[nodiscard]] bool bindFirst() const { return operations.makeCurrent(first.get()) && isCurrent(first); }
    [[nodiscard]] bool bindSecond() const { return operations.makeCurrent(second.get()) && isCurrent(second); }
    [[nodiscard]] static bool isCurrent(const Context &context) { return operations.currentContext() == context.get(); }
    [[nodiscard]] bool attach(const View &wanted) const {
        return operations.setView(first.get(), wanted) && has(wanted);
    }
    [[nodiscard]] bool attach(PixelBuffer *wanted) const {
        return operations.setPixelBuffer(first.get(), wanted) && has(View{});
    }
    [[nodiscard]] bool has(const View &wanted) const { return operations.view(first.get()) == wanted; }
};

struct Size {
    int32_t width = -1, height = -1;
    bool operator==(const Size &) const = default;
};

Size sizeOf(const View &view) {
    Size size;
    operations.viewSize(view, &size.width, nullptr);
    operations.viewSize(view, nullptr, &size.height);
    return size;
}

Size sizeOf(const PixelBuffer *buffer) {
    Size size;
    operations.pixelBufferSize(buffer, &size.width, nullptr);
    operations.pixelBufferSize(buffer, nullptr, &size.height);
    return size;
}

// Sample counts come as near as the host can; anything else is at least what was asked.
bool givesWhatIsAsked(const List &list) {
    const auto format = Bench::format(list);
    for (size_t i = 0; format && list[i]; ++i) {
        const uint32_t attribute = list[i];
        const int32_t value = attribute == DoubleBuffer ? 1 : static_cast<int32_t>(list[++i]);
        const bool isNear = attribute == SampleBuffers || attribute == Samples;
        if (!isNear && operations.pixelFormatValue(format.get(), attribute) < value) return false;
    }
    return format != nullptr;
}

struct Row {
    const char *operation, *precondition, *promise;
    unsigned on;
    bool (*holds)(Bench &);
};

const Row rows[] = {
    {"createPixelFormat", "nothing asked", "a format", everywhere, [](Bench &) { return givesWhatIsAsked({0}); }},
    {"createPixelFormat", "the probe's list", "a core format", everywhere,
     [](Bench &) {
         return givesWhatIsAsked({OpenGLProfile, profile3_2Core, 0});
     }},
    {"createPixelFormat", "much, and more samples than a host has", "at least that, as near as it comes", everywhere,
     [](Bench &) {
         return givesWhatIsAsked({OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, AlphaSize, 8, DepthSize,
                                  24, StencilSize, 8, SampleBuffers, 1, Samples, 1000, 0});
     }},
    {"createPixelFormat", "host refuses", "null", onRecording | onCocoa,
     [](Bench &b) { return b.host.refuseNext("createPixelFormat"), !Bench::format(core); }},
    {"pixelFormatValue", "an attribute that the format lacks", "0", everywhere,
     [](Bench &) { return operations.pixelFormatValue(Bench::format(core).get(), 4712) == 0; }},
    {"derivePixelFormat", "another profile", "that profile", everywhere,
     [](Bench &) {
         const Format derived(operations.derivePixelFormat(Bench::format(core).get(), legacy.data()));
         return operations.pixelFormatValue(derived.get(), OpenGLProfile) == int32_t(profileLegacy);
     }},
    {"releasePixelFormat", "null", "nothing", everywhere,
     [](Bench &) { return operations.releasePixelFormat(nullptr), true; }},

    {"createContext", "either profile", "a context", everywhere, [](Bench &b) { return b.first && b.second; }},
    {"createContext", "a share context", "a context", everywhere,
     [](Bench &b) { return Context(operations.createContext(b.format(core).get(), b.first.get())) != nullptr; }},
    {"createContext", "host refuses", "null", onRecording | onCocoa,
     [](Bench &b) {
         return b.host.refuseNext("createContext"), !operations.createContext(b.format(core).get(), nullptr);
     }},
    // On Cocoa a released context is nobody's at once.
    {"releaseContext", "current on the thread", "it stays current until another is", onRecording | onX11,
     [](Bench &b) {
         const auto *container = b.first.get();
         if (!b.bindFirst()) return false;
         b.first.reset();
         return operations.currentContext() == container && b.bindSecond();
     }},
    {"currentContext", "nothing is current", "null", everywhere, [](Bench &) { return !operations.currentContext(); }},
    {"currentContext", "somebody else's in place of ours", "null", everywhere,
     [](Bench &b) { return b.bindFirst() && (b.host.makeForeignCurrent(), !operations.currentContext()); }},
    {"currentContext", "current on another thread", "null there", everywhere,
     [](Bench &b) {
         bool isNone = false;
         const bool isBound = b.bindFirst();
         std::thread([&] { isNone = !operations.currentContext(); }).join();
         return isBound && isNone && b.isCurrent(b.first);
     }},
    {"clearCurrentContext", "ours is current", "none is", everywhere,
     [](Bench &b) { return b.bindFirst() && (operations.clearCurrentContext(), !operations.currentContext()); }},
    {"makeCurrent", "nothing attached, and another current", "it is current", everywhere,
     [](Bench &b) { return b.bindFirst() && b.bindSecond() && b.bindFirst(); }},

    {"setView", "a view", "it is the view, display and all", everywhere, [](Bench &b) { return b.attach(b.view); }},
    {"setView", "no view", "none is attached, and what is current stays", everywhere,
     [](Bench &b) { return b.attach(b.view) && b.bindFirst() && b.attach(View{}) && b.isCurrent(b.first); }},
    {"setView", "a bad view", "false, and the old one stays", onX11,
     [](Bench &b) { return b.attach(b.view) && !b.attach(b.host.badView()) && b.has(b.view); }},
    {"setPixelBuffer", "in place of a view", "no view, and a view takes its place again", everywhere,
     [](Bench &b) { return b.attach(b.view) && b.attach(b.buffer.get()) && b.bindFirst() && b.attach(b.view); }},
    {"setPixelBuffer", "null", "nothing is attached", everywhere,
     [](Bench &b) { return b.attach(b.view) && b.attach(nullptr); }},
    {"observeViewFrame", "any number of times", "changes nothing by itself", everywhere,
     [](Bench &b) {
         if (!b.attach(b.view)) return false;
         for (int i = 0; i < 2; ++i)
             operations.observeViewFrame(b.first.get(), b.view);
         return b.host.resizeView(b.view, 70, 50), b.has(b.view);
     }},
    {"flushBuffer", "nothing attached", "nothing", everywhere,
     [](Bench &b) { return operations.flushBuffer(b.first.get()), b.has(View{}); }},
    {"setSwapInterval", "any value, current or not", "nothing fails", everywhere,
     [](Bench &b) {
         operations.setSwapInterval(b.first.get(), 7);
         return b.attach(b.view) && b.bindFirst() && (operations.setSwapInterval(b.first.get(), -1), true);
     }},

    {"saveBinding", "nothing is current", "null", everywhere, [](Bench &) { return !operations.saveBinding(); }},
    {"restoreBinding", "ours was current", "it is again, with its view", everywhere,
     [](Bench &b) {
         if (!b.attach(b.view) || !b.bindFirst()) return false;
         auto *saved = operations.saveBinding();
         return b.bindSecond() && (operations.restoreBinding(saved), b.isCurrent(b.first) && b.has(b.view));
     }},
    {"restoreBinding", "somebody else's was current", "it is again", everywhere,
     [](Bench &b) {
         b.host.makeForeignCurrent();
         auto *saved = operations.saveBinding();
         const bool isOther = b.bindSecond() && !b.host.isForeignCurrent();
         return isOther && (operations.restoreBinding(saved), b.host.isForeignCurrent());
     }},
    {"restoreBinding", "null", "nothing is current", everywhere,
     [](Bench &b) { return b.bindFirst() && (operations.restoreBinding(nullptr), !operations.currentContext()); }},

    {"createPixelBuffer", "host refuses", "null", onRecording | onCocoa,
     [](Bench &b) { return b.host.refuseNext("createPixelBuffer"), !operations.createPixelBuffer(0, 0, 0, 4, 4); }},
    {"createPixelBuffer", "no size", "null, where the platform itself does not decide", onRecording | onX11,
     [](Bench &) {
         return !operations.createPixelBuffer(0, 0, 0, 0, 4) && !operations.createPixelBuffer(0, 0, 0, 4, -1);
     }},
    {"pixelBufferSize", "a buffer", "its size, into one output or the other", everywhere,
     [](Bench &b) { return sizeOf(b.buffer.get()) == Size(16, 8); }},
    {"pixelBufferSize", "null", "outputs untouched", everywhere,
     [](Bench &) { return sizeOf(static_cast<PixelBuffer *>(nullptr)) == Size(); }},
    {"releasePixelBuffer", "null", "nothing", everywhere,
     [](Bench &) { return operations.releasePixelBuffer(nullptr), true; }},

    {"viewSize", "a view that changes", "the size at each time", everywhere,
     [](Bench &b) {
         return sizeOf(b.view) == Size(64, 48) && (b.host.resizeView(b.view, 65, 49), sizeOf(b.view) == Size(65, 49));
     }},
    {"viewSize", "no view, or a bad one", "outputs untouched", everywhere,
     [](Bench &b) { return sizeOf(View()) == Size() && sizeOf(b.host.badView()) == Size(); }},
    {"viewTitle", "beyond ASCII and the basic plane", "UTF-8, whole", everywhere,
     [](Bench &b) { return operations.viewTitle(b.view) == "Gr\u00f6\u00dfe \U0001f4d0"; }},
    {"viewTitle", "no view, no title, or a bad view", "empty", everywhere,
     [](Bench &b) {
         return (operations.viewTitle({}) + operations.viewTitle(b.host.makeView(8, 8, nullptr)) +
                 operations.viewTitle(b.host.badView()))
             .empty();
     }},
};

TEST(Operations, KeepTheirPromises) {
    const auto host = makeOperationsHost();
    for (const auto &row : rows) {
        if (!(row.on & host->implementation())) continue;
        Bench bench{*host};
        EXPECT_TRUE(row.holds(bench)) << row.operation << ", " << row.precondition << ": " << row.promise;
        operations.clearCurrentContext();
    }
}

} // namespace
