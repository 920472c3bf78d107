#include "common/current_thread.h"

namespace {

constexpr zvThread emptyThread = {};

} // namespace

constinit thread_local const zvThread *currentThread = &emptyThread;

void noteCurrentThread() {
    currentThread = zvCurrentThread();
}
