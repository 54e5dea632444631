// Planted: a design knows how it is read from a file.
#include "host/import/read_design.h"
