#include "proxy_bench_back_end.h"

void backEndFlush() {}

void backEndDrawRangeElements(GLenum, GLuint, GLuint, GLsizei, GLenum, const void *) {}
