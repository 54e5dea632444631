// Planted: the helpdesk reaches for the properties of the design, and for a command.
#include "tarnix/commands/open_local_file.h"
#include "tarnix/properties/property_store.h"
