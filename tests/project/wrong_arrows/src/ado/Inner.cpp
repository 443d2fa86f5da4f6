#include "Inner.h"
#include <sqlite3.h>
