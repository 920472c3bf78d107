// What a context keeps of programs. Used on the context's thread.
#pragma once

#include "programs/shared_programs.h"

class Programs {
public:
    // What the current program reads; everything without one, as a pipeline may be bound.
    [[nodiscard]] ProgramInputs inputs(SharedPrograms &shared) {
        const bool isKnown = m_isKnown && m_changes == shared.changes.load(std::memory_order_relaxed);
        return isKnown ? m_inputs : look(shared);
    }
    // Another program may be current from now on.
    void forgetCurrent() { m_isKnown = false; }

private:
    ProgramInputs look(SharedPrograms &shared);

    ProgramInputs m_inputs;
    uint32_t m_changes = 0; // when the inputs were asked for
    bool m_isKnown = false;
};
