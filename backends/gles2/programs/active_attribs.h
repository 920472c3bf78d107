// Which vertex attributes a program reads. Arrays that it does not read may point anywhere.
#pragma once

#include "context/es_context.h"

// One bit an attribute that the current program reads; all of them where that is not known.
[[nodiscard]] uint32_t activeAttribs(EsContext &context);

// The program may read others from now on.
void forgetActiveAttribs(GLuint program);
