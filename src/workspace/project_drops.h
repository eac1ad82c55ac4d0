#pragma once

#include <QWidget>

#include "core/project_record.h"

namespace barvon {

/// A project or dilution file that is dropped on the window opens as File, Open opens it. Anything
/// else is not taken, nor are several files at once.
void Take_Project_Drops(QWidget& window, ProjectRecord& record);

}  // namespace barvon
