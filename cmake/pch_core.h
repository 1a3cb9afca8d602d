// Precompiled for everything that links Qt Core only. Sources still include what they use: ./lint builds without this.
#pragma once

#include <QtCore/QtCore>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>
