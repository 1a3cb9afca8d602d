// Precompiled for everything that links Qt Widgets.
#pragma once

#include "cmake/pch_core.h"

#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>
