// The size of one index of an index list.
#pragma once

// In bytes, by the type argument of a draw; 0 for an invalid type.
constexpr int indexSize(unsigned type) {
    switch (type) {
    case 0x1401: // GL_UNSIGNED_BYTE
        return 1;
    case 0x1403: // GL_UNSIGNED_SHORT
        return 2;
    case 0x1405: // GL_UNSIGNED_INT
        return 4;
    default:
        return 0;
    }
}
