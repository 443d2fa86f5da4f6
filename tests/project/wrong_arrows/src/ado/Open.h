#pragma once

#include "Inner.h"
#include "ado/Connection.h"
