// Vertices that matrices of the palette move, before the host sees them.
#pragma once

#include "fixed_function/matrix_palette.h"
#include "vertices/array_upload.h"

#include <optional>
#include <vector>

class EsContext;

// Whether draws move their vertices: the palette is on, and the arrays that say how.
[[nodiscard]] bool isSkinning(const EsContext &context);

// While it lives, the host's modelview leaves vertices alone, and the context has arrays of its own that hold positions
// and normals as the eye sees them; then the application's come back.
class SkinnedArrays {
public:
    SkinnedArrays(EsContext &context, const VerticesRead &vertices);
    ~SkinnedArrays();
    SkinnedArrays(const SkinnedArrays &) = delete;
    SkinnedArrays &operator=(const SkinnedArrays &) = delete;

private:
    // The application's array of a slot, and whether it is the host's.
    struct Saved {
        unsigned slot;
        OwnArray array;
        bool isHosts;
    };
    ArrayObject &m_object;
    std::vector<Saved> m_saved;
    std::vector<GLfloat> m_positions, m_normals;
    OtherModelview m_modelview;
};
