#include <KOVAVSFDataGridLib/ado/Connection.h>
#include "Options.h"
#include "ado/Inner.h"
