#pragma once

#include <QByteArray>
#include <QPageLayout>

#include "report/report_document.h"

class QPagedPaintDevice;

namespace barvon {

/// Paints the pages of the report on paper of that layout. The device must be ready to be painted
/// on with it. False when it can't be.
bool Paint_Report(const Report_Document& report, const QPageLayout& layout,
                  QPagedPaintDevice& device);

/// The report as a PDF file; empty when it could not be made.
QByteArray Report_Pdf(const Report_Document& report, const QPageLayout& layout);

/// US Letter with margins of three quarters of an inch.
QPageLayout Default_Report_Layout();

}  // namespace barvon
