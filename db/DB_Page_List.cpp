// The signals' meta-object is made from this file.
#include "db/DB_Page_List.h"
