// The first line of the journal and its last, and the recording of GL calls between them.
#pragma once

namespace egl {

class State;

// Called after the state is loaded, once a process. Does nothing without a journal.
void beginJournal(const State &state);

} // namespace egl
