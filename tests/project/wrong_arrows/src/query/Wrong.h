#pragma once

#include "ado/Connection.h"
#include <QtWidgets/QWidget>
