#include "tools/monitor/web/page.h"

// Embeds the page, which the build joins from the files in page/. The build declares that this object depends on it.
asm(".section .rodata\n"
    ".hidden zelvane_page\n.global zelvane_page\nzelvane_page:\n.incbin \"" ZELVANE_PAGE "\"\n"
    ".hidden zelvane_page_end\n.global zelvane_page_end\nzelvane_page_end:\n.byte 0\n.previous");
extern "C" const char zelvane_page[], zelvane_page_end[];

std::string pageText() {
    return {zelvane_page, zelvane_page_end};
}
