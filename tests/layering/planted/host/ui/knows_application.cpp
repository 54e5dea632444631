// Planted: the user interface knows the application.
#include "host/application/application_object.h"
