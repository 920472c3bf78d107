// Transforms vertices by the matrix palette in software, before the host draws them.
#pragma once

#include "fixed_function/matrix_palette.h"
#include "vertices/array_upload.h"

#include <optional>
#include <vector>

class EsContext;

// Whether draws transform their vertices: the palette is enabled, with its index and weight arrays.
[[nodiscard]] bool isSkinning(const EsContext &context);

// While it lives, the host's modelview is the identity, and the context has arrays of its own that hold positions and
// normals in eye coordinates; then the application's are restored.
class SkinnedArrays {
public:
    SkinnedArrays(EsContext &context, const VerticesRead &vertices);
    ~SkinnedArrays();
    SkinnedArrays(const SkinnedArrays &) = delete;
    SkinnedArrays &operator=(const SkinnedArrays &) = delete;

private:
    // The application's array of a slot, and whether the host holds it.
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
