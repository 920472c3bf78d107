// The library that the loading tests open.
extern "C" __attribute__((visibility("default"))) int zelvaneLoadableAnswer() {
    return 42;
}
