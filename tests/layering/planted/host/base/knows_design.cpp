// Planted: the first step of the ladder reaches up to the second.
#include "host/design/document.h"
