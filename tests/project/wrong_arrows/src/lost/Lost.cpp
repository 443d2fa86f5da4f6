#include "query/Wrong.h"
