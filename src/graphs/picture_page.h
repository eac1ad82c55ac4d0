#pragma once

#include <QByteArray>
#include <QString>

#include "results/results.h"

class QPagedPaintDevice;

namespace barvon {

/// A picture on a page of paper, with what a reader of the page alone must know.
struct Picture_Page {
  QByteArray svg;
  QString title;     // what the picture shows
  QString project;   // the project's title; may be empty
  QString footnote;  // file and date of the outputs
  QString label;     // the solver's own line, which says what it is worth
};

Picture_Page Page_Of(const QByteArray& svg, const QString& title, const Results& results);

/// Paints the page: the picture as large as it fits, lines as lines and letters as letters. False
/// when there is no picture or the device can't be painted on.
bool Paint_Picture_Page(const Picture_Page& page, QPagedPaintDevice& device);

/// The page as a PDF file on US Letter, across; empty when it could not be made.
QByteArray Picture_Pdf(const Picture_Page& page);

}  // namespace barvon
