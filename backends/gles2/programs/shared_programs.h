// A share group's data about programs and shaders. Any thread.
#pragma once

#include "common/shared_map.h"
#include "programs/program_inputs.h"
#include "programs/shader_interface.h"

#include <atomic>
#include <string>

// The interface of a separable program of one stage.
struct ProgramEnd {
    GLenum stage = GL_NONE;
    std::optional<ShaderInterface> interface;
};

struct SharedPrograms {
    SharedMap<ProgramInputs> inputs;      // of programs that drew from client memory
    std::atomic<uint32_t> changes = 0;    // of inputs; makes contexts query them again
    SharedMap<bool> separable;            // of programs that are to be linked for pipelines
    SharedMap<ProgramEnd> ends;           // of separable programs
    SharedMap<std::string> shaderSources; // of shaders: as passed by the application, if the host's differ

    // Called when the inputs of the program may have changed.
    void forgetInputs(GLuint program) {
        inputs.remove(program);
        ++changes;
    }
};
