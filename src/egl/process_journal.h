// The first line of the journal and its last, and the recording of GL calls between them.
#pragma once

namespace egl {

class State;

// Once the state is loaded, and once a process. Does nothing without a journal.
void beginJournal(const State &state);

} // namespace egl
