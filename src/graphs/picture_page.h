#pragma once

#include <QByteArray>
#include <QString>

#include "pictures/shapes/shapes.h"
#include "results/results.h"

class QPagedPaintDevice;

namespace barvon {

class Picture;

/// A picture on a page of paper, with what a reader of the page alone must know.
struct Picture_Page {
  Shape_List picture;
  QString title;     // what the picture shows; empty where the picture has it itself
  QString project;   // the project's title; may be empty
  QString footnote;  // file and date of the outputs
  QString label;     // the solver's own line, which says what it is worth
};

/// The page of a picture that is a list of shapes; of any other it has no picture.
Picture_Page Page_Of(Picture& picture, const QString& title, const Results& results);

/// Paints the page: the picture as large as it fits, lines as lines and letters as letters. False
/// when there is no picture, or the device can't be painted on.
bool Paint_Picture_Page(const Picture_Page& page, QPagedPaintDevice& device);

/// The page as a PDF file on US Letter, across; empty when it could not be made.
QByteArray Picture_Pdf(const Picture_Page& page);

}  // namespace barvon
