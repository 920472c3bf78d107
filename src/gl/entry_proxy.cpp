#include "gl/entry_proxy.h"

#include <string>

#include "foundation/log.h"

namespace gl {

namespace {

// The text is formatted here, since the log cuts the last character of some texts with a longer format.
void logError(const std::string &text) {
    logMessage(LogError, "%s", text.c_str());
}

} // namespace

Function resolveEntry(const GLEntryProxy &proxy, Function nothing) {
    FunctionTable &table = *currentFunctions;
    if (!table.context) {
        logError(std::string("Attempted to call '") + proxy.name + "', but there is no current context.");
        return nothing;
    }
    Function answer = table.ask(table.context, proxy.name);
    if (recorder && table.isRecorded) answer = recorder(proxy.name, answer);
    // The back end may have called this entry during the lookup; the first result is kept.
    Function resolver = functionsWithoutContext.at(proxy.slot);
    const bool isKept = std::atomic_ref(table.slots[proxy.slot])
                            .compare_exchange_strong(resolver, answer ? answer : nothing, std::memory_order_relaxed);
    if (!answer && isKept)
        logError(std::string("Attempted to use an unsupported extension function: '") + proxy.name + "'");
    return table.at(proxy.slot);
}

} // namespace gl
