#include "journal/recorded_context.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include <nlohmann/json.hpp>

#include "journal/recorded_calls.h"

namespace journal {

namespace {

struct Contexts {
    std::mutex mutex; // guards the map
    std::map<void *, std::unique_ptr<RecordedContext>> byAddress;
};

// Never destroyed: threads call functions while the process ends.
Contexts &contexts() {
    static Contexts &instance = *new Contexts;
    return instance;
}

// Increased whenever a record is removed, since threads store a pointer to their last one.
constinit std::atomic<uint64_t> generation = 1;

struct Remembered {
    void *context = nullptr;
    uint64_t generation = 0;
    RecordedContext *record = nullptr;
};
constinit thread_local Remembered remembered;

} // namespace

RecordedContext *RecordedContext::current() {
    const gl::FunctionTable &table = *gl::currentFunctions;
    if (!table.context || !table.isRecorded) return nullptr;
    const uint64_t now = generation.load(std::memory_order_acquire);
    if (remembered.context == table.context && remembered.generation == now) return remembered.record;
    RecordedContext *record = nullptr;
    bool isNew = false;
    {
        const std::lock_guard lock(contexts().mutex);
        auto &known = contexts().byAddress[table.context];
        isNew = !known;
        if (isNew) known = std::make_unique<RecordedContext>(table);
        record = known.get();
    }
    remembered = {table.context, now, record};
    if (isNew) write("device", record->device.words());
    return record;
}

void RecordedContext::forget(void *context) {
    const std::lock_guard lock(contexts().mutex);
    if (contexts().byAddress.erase(context) > 0) generation.fetch_add(1, std::memory_order_release);
}

bool RecordedContext::lacks(const RecordedCall &call) {
    if (m_functions.size() <= call.number) m_functions.resize(call.number + 1);
    Answer &answer = m_functions[call.number];
    if (answer == Answer::unknown)
        answer = call.es && !device.carries(call.es->origin) ? Answer::lacking : Answer::carried;
    return answer == Answer::lacking;
}

uint32_t RecordedContext::collectError() {
    const uint32_t error = device.takeError();
    // A host may have several error flags; those after the first belong to the same call and are dropped.
    for (int more = 0; error && more < 8 && device.takeError(); ++more) {
    }
    if (error && !m_kept) m_kept = error;
    return error;
}

uint32_t RecordedContext::giveError() {
    if (m_kept) return std::exchange(m_kept, 0);
    return device.takeError();
}

} // namespace journal
