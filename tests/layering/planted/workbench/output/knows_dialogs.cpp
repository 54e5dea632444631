// Planted: what writes a list asks the dialog for it.
#include "workbench/dialogs/bom_dialog.h"
