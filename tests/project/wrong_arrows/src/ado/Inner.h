#pragma once

#include "sql/Engine.h"
