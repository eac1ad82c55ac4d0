#pragma once

#include <string>

#include "core/project_file/project_image.h"
#include "platform/ask/progress_display.h"

namespace barvon {

/// The lines of a full project file for the image, Windows-1252 with CR LF, real fields 11 columns
/// wide. Values wider than their field are not cut: they shift the rest of their line.
std::string Write_Columns(const Project_Image& image, Progress_Display& progress);

}  // namespace barvon
