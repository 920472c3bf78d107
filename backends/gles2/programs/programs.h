// The program state of a context. Used on the context's thread.
#pragma once

#include "programs/shared_programs.h"

#include <unordered_set>

class Programs {
public:
    // The inputs of the current program; all without one, as a pipeline may be bound.
    [[nodiscard]] ProgramInputs inputs(SharedPrograms &shared) {
        const bool isKnown = m_isKnown && m_changes == shared.changes.load(std::memory_order_relaxed);
        return isKnown ? m_inputs : look(shared);
    }
    // Called when another program may be current.
    void forgetCurrent() {
        m_isKnown = false;
        forgetPipeline();
    }

    // Whether nothing can be drawn because the programs of the bound pipeline do not match.
    [[nodiscard]] bool isPipelineBroken(SharedPrograms &shared) {
        return m_isPipelineKnown ? m_isPipelineBroken : lookAtPipeline(shared);
    }
    void forgetPipeline() { m_isPipelineKnown = false; }

    std::unordered_set<GLuint> invalidPipelines; // at their last validation

private:
    bool lookAtPipeline(SharedPrograms &shared);
    ProgramInputs look(SharedPrograms &shared);

    ProgramInputs m_inputs;
    uint32_t m_changes = 0; // at the last query of the inputs
    bool m_isKnown = false;
    bool m_isPipelineKnown = true;
    bool m_isPipelineBroken = false;
};
