#include "checks/error_entries.h"
