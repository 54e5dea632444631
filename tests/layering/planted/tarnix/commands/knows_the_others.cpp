// Planted: a small command reaches for the BOM and for the helpdesk.
#include "tarnix/bom/model/walk.h"
#include "tarnix/helpdesk/support_folder.h"
