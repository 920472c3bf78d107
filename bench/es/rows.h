// The calls that es_bench measures.
#pragma once

#include "scene.h"

#include <span>

struct Row {
    const char *name;
    void (*prepare)(const Scene &scene);
    void (*body)(long passes);
    bool isForHost; // a core context has no arrays in client memory
};

[[nodiscard]] std::span<const Row> allRows();

// Selects the context whose objects the bodies use from now on.
void setScene(const Scene &scene);
