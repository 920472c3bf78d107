#include "tools/run/elf_program.h"

#include <cstring>
#include <elf.h>
#include <fstream>
#include <link.h>

namespace {

template <typename Record>
bool readAt(std::ifstream &file, uint64_t offset, Record &record) {
    file.seekg(static_cast<std::streamoff>(offset));
    return static_cast<bool>(file.read(reinterpret_cast<char *>(&record), sizeof record));
}

ElfW(Ehdr) ownHeader() {
    ElfW(Ehdr) header{};
    std::ifstream file("/proc/self/exe", std::ios::binary);
    (void)readAt(file, 0, header);
    return header;
}

} // namespace

ElfProgram readElfProgram(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    ElfW(Ehdr) header{};
    if (!readAt(file, 0, header) || memcmp(header.e_ident, ELFMAG, SELFMAG) != 0) return {};
    const ElfW(Ehdr) own = ownHeader();
    if (header.e_ident[EI_CLASS] != own.e_ident[EI_CLASS] || header.e_machine != own.e_machine)
        return {ElfProgram::otherMachine, {}};
    for (unsigned index = 0; index < header.e_phnum; ++index) {
        ElfW(Phdr) segment{};
        if (!readAt(file, header.e_phoff + uint64_t(index) * header.e_phentsize, segment)) return {};
        if (segment.p_type != PT_INTERP) continue;
        char name[256] = "";
        file.seekg(static_cast<std::streamoff>(segment.p_offset));
        file.read(name, std::min<uint64_t>(segment.p_filesz, sizeof name - 1));
        return {ElfProgram::dynamic, name};
    }
    return {ElfProgram::fixed, {}};
}
