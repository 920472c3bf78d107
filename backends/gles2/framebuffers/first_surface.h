// The draw and read buffers of a context. Hosts fix them when a context is first made current; if that is without a
// surface, they stay GL_NONE for good. A context of ES draws to the first surface that it gets.
#pragma once

class FirstSurface {
public:
    // Called at every bind.
    void take() {
        if (!m_isTaken) m_isTaken = tryTake();
    }

private:
    static bool tryTake();

    bool m_isTaken = false;
};
