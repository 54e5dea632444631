// Planted: the storage knows the screen.
#include "host/ui/user_interface_object.h"
