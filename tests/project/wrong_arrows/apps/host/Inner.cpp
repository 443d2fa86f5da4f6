#include "ado/Inner.h"
#include "Options.h"
#include <KOVAVSFDataGridLib/ado/Connection.h>
