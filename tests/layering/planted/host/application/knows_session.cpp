// Planted: the application knows who uses it.
#include "host/session/session.h"
