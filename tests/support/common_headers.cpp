/// Only its precompiled headers are of use: a program, so that they are compiled as the tests are.
int main() { return 0; }
