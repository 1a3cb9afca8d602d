#include "fb/FB_Constant_Value.h"

QString FB_Constant_Value::bodyText() const {
  return record().mParams.value(0).simplified();
}
