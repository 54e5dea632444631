// Not part of any program: compiled as C++14, it has to be refused with a line that says why.
#include <Core/Application/Application.h>
