// Nothing but a program to precompile headers for.
int main() {}
