// Planted, and allowed.
#include <windows.h>
