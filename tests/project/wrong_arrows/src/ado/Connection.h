#pragma once

#include "Open.h"
