#include "core/exact_values.h"
