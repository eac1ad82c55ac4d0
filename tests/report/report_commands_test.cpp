#include "report/report_commands.h"
