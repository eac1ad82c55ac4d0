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

/// Paints pages, from the first to the last that is asked for, from 1; 0 and 0 are all of them.
/// False when the device can't be painted on.
bool Paint_Pages(const std::vector<Shape_List>& pages, int first, int last,
                 QPagedPaintDevice& device);

/// The report as a PDF file; empty when it could not be made.
QByteArray Report_Pdf(const Report_Document& report, const QPageLayout& layout);

}  // namespace barvon
