// Planted: the host names a command of an add-in.
const char* const kCommand = "QM_TX_BOM";
