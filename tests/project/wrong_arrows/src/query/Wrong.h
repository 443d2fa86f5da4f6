#pragma once

#include "ado/Connection.h"
