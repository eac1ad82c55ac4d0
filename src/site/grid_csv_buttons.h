#pragma once

#include <QPushButton>
#include <QString>
#include <functional>
#include <string>

#include "platform/qt/table/spreadsheet_view.h"

namespace barvon {

/// What the two buttons of a grid's table are called.
struct Grid_Csv_Texts {
  QString name;  // behind "Import" and "Export": ImportGrid, ExportGrid
  QString import_caption;
  QString export_caption;
  std::string what;          // in the titles of the file dialogs: "Depth Grid"
  std::string offered_name;  // of the exported file
};

/// The two buttons that read a grid's table from comma separated values and write it so. An import
/// is one step that can be undone; `imported` is called behind it.
struct Grid_Csv_Buttons {
  QPushButton* Import;  // both belong to the parent
  QPushButton* Export;

  Grid_Csv_Buttons(QWidget* parent, F1Book* book, const Grid_Csv_Texts& texts,
                   const std::function<void()>& imported);
};

}  // namespace barvon
