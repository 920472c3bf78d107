// What a share group keeps of programs and shaders. Any thread.
#pragma once

#include "common/shared_map.h"
#include "programs/program_inputs.h"
#include "programs/shader_interface.h"

#include <atomic>
#include <string>

// What a separable program of one stage has towards another.
struct ProgramEnd {
    GLenum stage = GL_NONE;
    std::optional<ShaderInterface> interface;
};

struct SharedPrograms {
    SharedMap<ProgramInputs> inputs;      // of programs that drew from the application's memory
    std::atomic<uint32_t> changes = 0;    // of inputs; tells contexts to look again
    SharedMap<bool> separable;            // of programs that are to be linked for pipelines
    SharedMap<ProgramEnd> ends;           // of separable programs
    SharedMap<std::string> shaderSources; // of shaders: as the application gave them, where the host has another form

    // The program may read others from now on.
    void forgetInputs(GLuint program) {
        inputs.remove(program);
        ++changes;
    }
};
