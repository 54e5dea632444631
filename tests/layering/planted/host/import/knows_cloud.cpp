// Planted: an import knows where its file is stored.
#include "host/cloud/data_file_object.h"
