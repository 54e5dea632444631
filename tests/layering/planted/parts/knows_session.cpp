// Planted: the parts list is made of a plain design, however it was opened.
#include <Fusion/FusionAll.h>
#include "host/design/design_data.h"
#include "host/session/session.h"
#include "workbench/dialogs/addin_ids.h"
