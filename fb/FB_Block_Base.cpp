#include "fb/FB_Block_Base.h"

bool FB_Block_Base::belongsToElement() const {
  return true;
}
