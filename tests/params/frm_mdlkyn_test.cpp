#include "params/frm_mdlkyn.h"
