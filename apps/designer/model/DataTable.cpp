#include "model/DataTable.h"
