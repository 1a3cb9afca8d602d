#include "fb/FB_HS_Base.h"
