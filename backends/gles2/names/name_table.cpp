#include "names/name_table.h"

#include <algorithm>

NameTable::~NameTable() {
    for (const auto &chunk : m_chunks)
        delete chunk.load();
}

GLuint NameTable::findLocked(GLuint name) const {
    if (isLow(name)) return findLow(name);
    const auto found = m_highNames.find(name);
    return found == m_highNames.end() ? 0 : found->second;
}

GLuint NameTable::findHigh(GLuint name) const {
    const std::lock_guard lock(m_mutex);
    return findLocked(name);
}

void NameTable::set(GLuint name, GLuint hostName) {
    const GLuint index = name / chunkSize;
    if (!isLow(name)) {
        if (hostName) {
            m_highNames[name] = hostName;
        } else {
            m_highNames.erase(name);
        }
        return;
    }
    Chunk *chunk = m_chunks[index].load(std::memory_order_relaxed);
    if (!chunk) {
        chunk = new Chunk{};
        m_chunks[index].store(chunk, std::memory_order_release);
    }
    (*chunk)[name % chunkSize].store(hostName, std::memory_order_relaxed);
}

// Generates a host name that the application has not chosen itself, so that it can be the application's name too.
GLuint NameTable::generateUnknown(Generate *generate) {
    for (;;) {
        GLuint name = 0;
        generate(1, &name);
        if (name == 0 || findLocked(name) == 0) return name;
        m_spare.push_back(name);
    }
}

GLuint NameTable::make(GLuint name, Generate *generate, IsObject *isObject) {
    const std::lock_guard lock(m_mutex);
    if (const GLuint known = findLocked(name)) return known;
    if (!m_otherNames.contains(name) && isObject(name)) {
        set(name, name);
        return name;
    }
    GLuint hostName = 0;
    if (m_spare.empty()) {
        generate(1, &hostName);
    } else {
        hostName = m_spare.back();
        m_spare.pop_back();
    }
    if (hostName == 0) return 0;
    set(name, hostName);
    if (name != hostName) {
        m_otherNames.emplace(hostName, name);
        m_hasOthers = true;
    }
    return hostName;
}

void NameTable::generate(GLsizei count, GLuint *names, Generate *generate) {
    const std::lock_guard lock(m_mutex);
    for (GLsizei index = 0; index < count; ++index) {
        names[index] = generateUnknown(generate);
        if (names[index]) set(names[index], names[index]);
    }
}

GLuint NameTable::generateHidden(Generate *generate) {
    const std::lock_guard lock(m_mutex);
    GLuint hostName = 0;
    generate(1, &hostName);
    m_otherNames.emplace(hostName, 0);
    m_hasOthers = true;
    return hostName;
}

void NameTable::forgetHidden(GLuint hostName) {
    const std::lock_guard lock(m_mutex);
    m_otherNames.erase(hostName);
}

void NameTable::alias(GLuint name, GLuint hostName) {
    const std::lock_guard lock(m_mutex);
    set(name, hostName);
    m_otherNames.emplace(hostName, name);
    m_hasOthers = true;
}

void NameTable::forgetOther(GLuint name, GLuint hostName) {
    const auto [begin, end] = m_otherNames.equal_range(hostName);
    const auto other = std::find_if(begin, end, [&](const auto &row) { return row.second == name; });
    if (other != end) m_otherNames.erase(other);
}

void NameTable::replace(GLuint name, GLuint hostName) {
    const std::lock_guard lock(m_mutex);
    const GLuint old = findLocked(name);
    forgetOther(name, old);
    set(name, hostName);
    m_otherNames.erase(hostName);
    m_otherNames.emplace(hostName, name);
    m_hasOthers = true;
}

std::vector<GLuint> NameTable::hostNames() const {
    const std::lock_guard lock(m_mutex);
    std::vector<GLuint> names;
    for (const auto &slot : m_chunks) {
        const Chunk *const chunk = slot.load(std::memory_order_relaxed);
        if (!chunk) continue;
        for (const std::atomic<GLuint> &hostName : *chunk) {
            if (const GLuint found = hostName.load(std::memory_order_relaxed)) names.push_back(found);
        }
    }
    for (const auto &[name, hostName] : m_highNames)
        names.push_back(hostName);
    return names;
}

GLuint NameTable::remove(GLuint name) {
    const std::lock_guard lock(m_mutex);
    const GLuint hostName = findLocked(name);
    if (hostName == 0) return 0;
    set(name, 0);
    if (name != hostName) {
        // Limits the map: a program may delete such objects endlessly, and few are still attached.
        if (m_lastNames.size() >= mostLastNames) m_lastNames.clear();
        m_lastNames[hostName] = name;
    } else if (m_hasOthers) {
        m_lastNames.erase(hostName);
    }
    forgetOther(name, hostName);
    const bool isStillMeant = m_otherNames.contains(hostName) || findLocked(hostName) == hostName;
    return isStillMeant ? 0 : hostName;
}

GLuint NameTable::nameOf(GLuint hostName) const {
    if (hostName == 0 || !m_hasOthers.load(std::memory_order_relaxed)) return hostName;
    const std::lock_guard lock(m_mutex);
    if (findLocked(hostName) == hostName) return hostName;
    if (const auto found = m_otherNames.find(hostName); found != m_otherNames.end()) return found->second;
    const auto last = m_lastNames.find(hostName);
    return last == m_lastNames.end() ? hostName : last->second;
}
