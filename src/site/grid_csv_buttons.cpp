#include "site/grid_csv_buttons.h"

#include "site/grid_csv_file.h"
#include "site/grid_rows.h"

namespace barvon {

Grid_Csv_Buttons::Grid_Csv_Buttons(QWidget* parent, F1Book* book, const Grid_Csv_Texts& texts,
                                   const std::function<void()>& imported)
    : Import(new QPushButton(texts.import_caption, parent)),
      Export(new QPushButton(texts.export_caption, parent)) {
  Import->setObjectName("Import" + texts.name);
  Export->setObjectName("Export" + texts.name);
  Import->setToolTip(QStringLiteral("Reads the table from comma separated values, row by row"));
  Export->setToolTip(QStringLiteral("Writes the table as comma separated values, row by row"));
  for (QPushButton* button : {Import, Export}) button->setAutoDefault(false);
  QObject::connect(Import, &QPushButton::clicked, book, [book, what = texts.what, imported] {
    Spreadsheet_Table& table = book->table();
    const auto rows = Import_Grid_Csv("Import " + what, table.MaxRow(), table.MaxCol());
    if (!rows) return;
    Put_Rows(*rows, table);
    imported();
  });
  QObject::connect(Export, &QPushButton::clicked, book,
                   [book, what = texts.what, name = texts.offered_name] {
                     Export_Grid_Csv("Export " + what, name, Rows_Of_Table(book->table()));
                   });
}

}  // namespace barvon
