// A program to precompile headers for.
int main() {}
