#include "workbench/dialogs/addin_ids.h"

const char* const command = "QM_TX_BOM";
