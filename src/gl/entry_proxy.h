// The entries that applications get for GL names: one generic definition, given the record and signature of a name.
#pragma once

#include <cstddef>

#include "foundation/gl_types.h"
#include "gl/function_table.h"

namespace gl {

// The record of one exposed name.
struct GLEntryProxy {
    const char *name; // also the name that is looked up in the back end
    size_t slot;      // in every function table
};

// Called by an entry whose slot is not resolved: looks the function up in the current context's back end and stores the
// result, even null. Returns nothing, with a log line, without a current context and for a name that the back end
// lacks; the latter is logged once per name and context. Leaves the EGL error unchanged. Any thread.
[[nodiscard, gnu::cold]] Function resolveEntry(const GLEntryProxy &proxy, Function nothing);

template <const GLEntryProxy &proxy, typename Signature>
struct Entry;

template <const GLEntryProxy &proxy, typename Result, typename... Parameters>
struct Entry<proxy, Result(Parameters...)> {
    // Executed by every GL call: a thread-local load, a load of the slot, a jump.
    static Result GL_APIENTRY call(Parameters... arguments) {
        return typed(currentFunctions->at(proxy.slot))(arguments...);
    }

    // The contents of a slot until its name is looked up.
    [[gnu::cold]] static Result GL_APIENTRY resolve(Parameters... arguments) {
        return typed(resolveEntry(proxy, reinterpret_cast<Function>(&nothing)))(arguments...);
    }

private:
    using Typed = Result(GL_APIENTRY *)(Parameters...);

    static Typed typed(Function function) { return reinterpret_cast<Typed>(function); }

    // Does nothing and returns 0, if there is no function.
    static Result GL_APIENTRY nothing(Parameters...) { return Result(); }
};

} // namespace gl
