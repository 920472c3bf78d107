// Sets or removes an environment variable until the end of the scope.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

class Variable {
public:
    Variable(const char *name, const std::optional<std::string> &value) : m_name(name) {
        if (const char *old = getenv(name)) m_old = old;
        set(value);
    }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;
    ~Variable() { set(m_old); }

private:
    void set(const std::optional<std::string> &value) const {
        value ? setenv(m_name, value->c_str(), 1) : unsetenv(m_name);
    }

    const char *m_name;
    std::optional<std::string> m_old;
};
