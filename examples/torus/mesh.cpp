#include "mesh.h"

#include <cmath>
#include <numbers>

Mesh makeTorus(float ringRadius, float tubeRadius, int ringSteps, int tubeSteps) {
    constexpr float turn = 2 * std::numbers::pi_v<float>;
    Mesh mesh;
    // The vertices of the seam are duplicated, since the texture coordinates restart there.
    for (int ring = 0; ring <= ringSteps; ++ring) {
        const float u = static_cast<float>(ring) / static_cast<float>(ringSteps);
        for (int tube = 0; tube <= tubeSteps; ++tube) {
            const float v = static_cast<float>(tube) / static_cast<float>(tubeSteps);
            const float x = std::cos(u * turn);
            const float y = std::sin(u * turn);
            const float out = std::cos(v * turn);
            const float up = std::sin(v * turn);
            const float radius = ringRadius + tubeRadius * out;
            mesh.vertices.push_back({{x * radius, y * radius, tubeRadius * up}, {x * out, y * out, up}, {u, v}});
        }
    }
    const int row = tubeSteps + 1;
    for (int ring = 0; ring < ringSteps; ++ring) {
        for (int tube = 0; tube < tubeSteps; ++tube) {
            const int corner = ring * row + tube;
            for (const int index : {corner, corner + row, corner + row + 1, corner, corner + row + 1, corner + 1}) {
                mesh.indices.push_back(static_cast<GLushort>(index));
            }
        }
    }
    return mesh;
}
