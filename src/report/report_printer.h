#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <vector>

#include "pictures/shapes/shapes.h"
#include "report/report_document.h"

class QPagedPaintDevice;

namespace barvon {

/// US Letter with margins of three quarters of an inch.
QPageLayout Default_Report_Layout();

/// The pages of the report on paper of that layout.
std::vector<Shape_List> Pages_On(const Report_Document& report, const QPageLayout& layout);

/// Which pages of a report are painted, from 1; 0 and 0 are all of them.
struct Page_Range {
  int first = 0, last = 0;
  bool last_page_first = false;
};

/// Paints pages. False when the device can't be painted on.
bool Paint_Pages(const std::vector<Shape_List>& pages, const Page_Range& range,
                 QPagedPaintDevice& device);

/// The report as a PDF file; empty when it could not be made.
QByteArray Report_Pdf(const Report_Document& report, const QPageLayout& layout);

}  // namespace barvon
