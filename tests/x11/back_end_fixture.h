// A desktop context of version 3.2 core on a pbuffer, made without libEGL, and the back end opened beside it. What
// libEGL would do, the fixture does: it binds the context and tells which back-end context is current.
#pragma once

#include <GLES3/gl32.h>
#include <gmock/gmock.h>
#include <zelvane/back_end.h>

#include <memory>
#include <string>
#include <vector>

struct HostContext; // the X and GLX objects

class BackEnd : public testing::Test {
protected:
    static constexpr int size = 16;

    BackEnd();
    ~BackEnd() override;

    // Makes a back-end context of this version on the bound host context and makes it the current one.
    void start(int esMajor, int esMinor, bool isSrgb = false);

    // What the back end is told to be the calling thread's context.
    static zvEsContext &current();

    // What an application gets for the name. The prototype says the type: es<decltype(glClear)>("glClear").
    template <typename Function>
    Function *es(const char *name) {
        return reinterpret_cast<Function *>(getExtProcAddress(name));
    }
    // One value of glGetIntegerv.
    GLint integer(GLenum name);
    // A symbol of the library itself.
    void *symbol(const char *name) const;
    // File name of the library that holds the function.
    static std::string homeOf(void *function);

    GLuint compile(GLenum type, const std::vector<std::string> &source);

    decltype(&zvCreateEsContext) createEsContext;
    decltype(&zvSetEsContextAttribs) setEsContextAttribs;
    decltype(&zvDeleteEsContext) deleteEsContext;
    decltype(&zvGetExtProcAddress) getExtProcAddress;
    decltype(&zvSetRenderMode) setRenderMode;
    ContextAttribs attribs = {};

private:
    std::unique_ptr<HostContext> m_host;
    void *m_library;
};

#define ES(name) (this->es<decltype(name)>(#name))
