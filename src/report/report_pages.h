#pragma once

#include <vector>

#include "pictures/shapes/shapes.h"
#include "report/report_blocks.h"
#include "report/report_document.h"

namespace barvon {

/// A sheet of paper, in points (1/72 inch).
struct Report_Paper {
  double width = 612, height = 792;                     // US Letter
  double left = 54, top = 54, right = 54, bottom = 54;  // margins
};

/// The report on pages of paper, a list of shapes for each, in points. Every page bears the
/// report's running title, its date and "Page n of m". Rows, pictures and short paragraphs are
/// whole; a heading or a caption is on the page of what follows it, and a table that goes on has
/// its headings again and four rows at least. A paper that is too small for anything is taken as
/// the default one. Without a measure the letters are taken for wide ones.
std::vector<Shape_List> Report_Pages(const Report_Document& report, const Report_Paper& paper = {},
                                     const Text_Measure& measure = {});

}  // namespace barvon
