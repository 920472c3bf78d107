// All other names that the feature table looks up, so that the result identifies each lookup.
extern "C" __attribute__((visibility("default"))) void fakeEntryPoint() {}

#define EXPORT(name) asm(".weak " name "\n.type " name ", @function\n.set " name ", fakeEntryPoint");
#define EXPORT_THIRD(name) EXPORT(name)
#define EXPORT_SECOND(name, ...) EXPORT(name) __VA_OPT__(EXPORT_THIRD(__VA_ARGS__))
#define EXPORT_FIRST(name, ...) EXPORT(name) __VA_OPT__(EXPORT_SECOND(__VA_ARGS__))

#define FAMILY(...)
#define ENTRY_POINT(feature, ...) EXPORT_FIRST(__VA_ARGS__)
#define DIRECT_STORAGE_ENTRY_POINT(feature, name) EXPORT(name)
#include "capability/data/feature_entry_points.def"
