// Maps the names that an application uses for objects of one kind to those of the host. ES lets an application choose
// names itself; a core context accepts only those that it generated. A generated name is the same on both sides.
// Any thread; the host context that the names belong to must be current where an object is created.
#pragma once

#include "es_gl.h"

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

class NameTable {
public:
    using Generate = void(GLsizei, GLuint *);
    using IsObject = GLboolean(GLuint);

    NameTable() = default;
    NameTable(const NameTable &) = delete;
    NameTable &operator=(const NameTable &) = delete;
    ~NameTable();

    // The host's name, or 0. Takes no lock for names below a million.
    [[nodiscard]] GLuint find(GLuint name) const { return isLow(name) ? findLow(name) : findHigh(name); }
    // As find(); an unknown name is one that the application has chosen, and gets an object. 0 stays 0.
    // isObject: detects an object that a context of another back end in the share group created.
    GLuint findOrMake(GLuint name, Generate *generate, IsObject *isObject) {
        if (name == 0) return 0;
        const GLuint known = find(name);
        return known ? known : make(name, generate, isObject);
    }
    // New names for the application.
    void generate(GLsizei count, GLuint *names, Generate *generate);
    // A host object for this library's own use, invisible to applications.
    GLuint generateHidden(Generate *generate);
    // Called before the host deletes it.
    void forgetHidden(GLuint hostName);

    // Maps one name to the object of another.
    void alias(GLuint name, GLuint hostName);
    // The same for a name whose object the host is about to delete.
    void replace(GLuint name, GLuint hostName);
    // Removes a name. Returns the host's name when no other name maps to it any more, otherwise 0.
    GLuint remove(GLuint name);

    // All objects that the application knows.
    [[nodiscard]] std::vector<GLuint> hostNames() const;

    // The application's name of the host's object, or its name before it was deleted: it may still be attached. 0 for
    // an object that it does not know.
    [[nodiscard]] GLuint nameOf(GLuint hostName) const;

private:
    static constexpr GLuint chunkSize = 1024;
    static constexpr GLuint chunkCount = 1024;
    static constexpr size_t mostLastNames = 4096;
    using Chunk = std::array<std::atomic<GLuint>, chunkSize>;

    static bool isLow(GLuint name) { return name < chunkSize * chunkCount; }
    GLuint findLow(GLuint name) const {
        const Chunk *const chunk = m_chunks[name / chunkSize].load(std::memory_order_acquire);
        return chunk ? (*chunk)[name % chunkSize].load(std::memory_order_relaxed) : 0;
    }
    GLuint findHigh(GLuint name) const;
    GLuint make(GLuint name, Generate *generate, IsObject *isObject);

    void set(GLuint name, GLuint hostName);
    void forgetOther(GLuint name, GLuint hostName);
    GLuint findLocked(GLuint name) const;
    GLuint generateUnknown(Generate *generate);

    std::array<std::atomic<Chunk *>, chunkCount> m_chunks = {};
    mutable std::mutex m_mutex;                     // guards changes and the fields below
    std::unordered_map<GLuint, GLuint> m_highNames; // names beyond the chunks
    // Names by host name, where the two differ: 0 for hidden objects. An object may have several.
    std::unordered_multimap<GLuint, GLuint> m_otherNames;
    std::unordered_map<GLuint, GLuint> m_lastNames; // by host name: of removed objects, where the two differ
    std::vector<GLuint> m_spare;                    // host names that an application has chosen for other objects
    std::atomic<bool> m_hasOthers = false;
};
