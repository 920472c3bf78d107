// The capabilities of a context's device, as the context reports them to a program.
#pragma once

#include <bitset>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "gl/function_table.h"
#include "journal/es_tables.h"
#include "journal/journal.h"

namespace journal {

// Created with the table's context current, and used only on threads that have it current.
class DeviceView {
public:
    explicit DeviceView(const gl::FunctionTable &table);

    // Whether the version or an advertised extension has it.
    [[nodiscard]] bool carries(const EsOrigin &origin) const;
    // An enumerant that OpenGL ES has and this device lacks. False for unknown ones.
    [[nodiscard]] bool lacksEnumerant(uint64_t value) const {
        return value < m_lacking.size() && m_lacking[static_cast<size_t>(value)];
    }
    [[nodiscard]] bool announcesCompressedFormat(uint32_t format) const;
    [[nodiscard]] const std::vector<int32_t> &compressedFormats() const { return m_compressedFormats; }
    // Nothing if the context does not report the limit.
    [[nodiscard]] std::optional<int32_t> limit(uint32_t name);
    // 0 when no error is pending on the context.
    [[nodiscard]] uint32_t takeError() const { return m_getError ? m_getError() : 0; }

    // The context's description, for the journal.
    [[nodiscard]] Json words() const;

private:
    template <typename Type>
    [[nodiscard]] Type ask(const gl::FunctionTable &table, const char *name) const;
    [[nodiscard]] std::string string(uint32_t name) const;
    void readVersion();
    void readExtensions(const gl::FunctionTable &table);
    void readCompressedFormats();

    const unsigned char *(*m_getString)(uint32_t) = nullptr;
    void (*m_getIntegerv)(uint32_t, int32_t *) = nullptr;
    uint32_t (*m_getError)() = nullptr;
    int m_version = 0; // 11, 20, 30, 31, 32
    std::set<std::string, std::less<>> m_extensions;
    std::vector<int32_t> m_compressedFormats;
    std::bitset<0x20000> m_lacking; // enumerants
    std::map<uint32_t, std::optional<int32_t>> m_limits;
};

} // namespace journal
