// What a context keeps of programs. Used on the context's thread.
#pragma once

#include "programs/shared_programs.h"

#include <unordered_set>

class Programs {
public:
    // What the current program reads; everything without one, as a pipeline may be bound.
    [[nodiscard]] ProgramInputs inputs(SharedPrograms &shared) {
        const bool isKnown = m_isKnown && m_changes == shared.changes.load(std::memory_order_relaxed);
        return isKnown ? m_inputs : look(shared);
    }
    // Another program may be current from now on.
    void forgetCurrent() {
        m_isKnown = false;
        forgetPipeline();
    }

    // Whether nothing can be drawn, for the programs of the bound pipeline disagree.
    [[nodiscard]] bool isPipelineBroken(SharedPrograms &shared) {
        return m_isPipelineKnown ? m_isPipelineBroken : lookAtPipeline(shared);
    }
    void forgetPipeline() { m_isPipelineKnown = false; }

    std::unordered_set<GLuint> invalidPipelines; // as they were when they were looked at

private:
    bool lookAtPipeline(SharedPrograms &shared);
    ProgramInputs look(SharedPrograms &shared);

    ProgramInputs m_inputs;
    uint32_t m_changes = 0; // when the inputs were asked for
    bool m_isKnown = false;
    bool m_isPipelineKnown = true;
    bool m_isPipelineBroken = false;
};
