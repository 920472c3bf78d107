// The buffer that a context draws to and reads from. Hosts settle it when their context is first made current, which
// may be without a surface, and then draw nowhere ever after; a context of ES draws to the first surface that it gets.
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
