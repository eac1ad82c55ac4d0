#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "attacks/attacked_saves.h"
#include "graphs/export_bench.h"
#include "graphs/graph_exports.h"
#include "graphs/map_exports.h"
#include "graphs/picture_sequence.h"
#include "platform/ask/file_dialog.h"
#include "platform/qt/session_printer.h"

namespace barvon::testing {
namespace {

constexpr char kPlace[] = "[Place]\nEasting=1000\nNorthing=2000\nTurn=0\nUnit=ft\nSystem=\n";
constexpr char kOtherPlace[] = "[Place]\nEasting=1\nNorthing=2\nTurn=3\nUnit=m\nSystem=mine\n";

/// One page for all saves of a process, with a map and three times.
Bar_Page& Page() {
  static Bar_Page page;
  page.map = Shown_Map{{2, 3, 100, 100, {0, 10, 0, 0, 0, 0}}, {5}, "Sand at 20 ft", "mg/l"};
  page.length = 3;
  return page;
}

void Choose(const std::string& path) {
  File_Dialog_Presenter dialogs;
  dialogs.save = [path](const File_Request&) { return path; };
  dialogs.printer = [path](const std::string&, int) {
    Session_Printer().setOutputFileName(QString::fromStdString(path));
    return true;
  };
  Set_File_Dialog_Presenter(dialogs);
}

using Export = std::function<void(Bar_Page&, const Results_Held&)>;

/// An export that is saved as `chosen`, into `files`, where the place of the grid is kept.
Attacked_Save Graph_Save(const std::string& name, const std::string& chosen,
                         const std::vector<std::string>& files, const Export& save) {
  return {name, files,
          [files](const Attack_Bench& bench) {
            Put_File(bench.In("bay/a.place"), kPlace);
            for (const std::string& file : files) Put_File(bench.In(file), "an earlier one\r\n");
          },
          [chosen](Attack_Bench& bench) {
            Page();
            Choose(bench.In(chosen));
          },
          [save](Attack_Bench& bench) { save(Page(), Results_At(bench.In("bay/a.DUI"))); }};
}

Attacked_Save Graph_Save(const std::string& name, const std::string& file, const Export& save) {
  return Graph_Save(name, file, {file}, save);
}

void Save_Picture_File(Bar_Page& page, const Results_Held& results) {
  Save_Picture_As(page, results);
}
void Save_Numbers_File(Bar_Page& page, const Results_Held& results) {
  Save_Numbers_As(page, results);
}
void Save_Map(Bar_Page& page, const Results_Held& results) { Save_Map_For_Gis(page, results); }
void Save_All_Times(Bar_Page& page, const Results_Held& results) { Save_Sequence(page, results); }
void Print(Bar_Page& page, const Results_Held& results) { Print_Picture(page, results); }

/// Another place is typed over the one that is kept.
void Type_Place(Bar_Page&, const Results_Held& results) {
  QTimer::singleShot(0, [] {
    QWidget* const window = QApplication::activeModalWidget();
    window->findChild<QLineEdit*>(QStringLiteral("txtEasting"))->setText(QStringLiteral("5000"));
    window->findChild<QLineEdit*>(QStringLiteral("txtNorthing"))->setText(QStringLiteral("7000"));
    window->findChild<QLineEdit*>(QStringLiteral("txtTurn"))->setText(QStringLiteral("30"));
    window->findChild<QPushButton*>(QStringLiteral("Command1(0)"))->click();
  });
  Change_Place(results);
}

Attacked_Save Place_Save() {
  Attacked_Save save = Graph_Save("graphs: place of the grid", "bay/a.place", Type_Place);
  save.lay = [](const Attack_Bench& bench) { Put_File(bench.In("bay/a.place"), kOtherPlace); };
  return save;
}

Attacked_Save Grid_Save() {
  Attacked_Save save = Graph_Save("graphs: grid and notes", "bay/map.asc",
                                  {"bay/map.asc", "bay/map.asc.aux.xml"}, Save_Map);
  save.about_the_first = {"bay/map.asc.aux.xml"};
  return save;
}

}  // namespace

std::vector<Attacked_Save> Graph_Saves() {
  return {Graph_Save("graphs: PNG", "bay/maxima.png", Save_Picture_File),
          Graph_Save("graphs: SVG", "bay/maxima.svg", Save_Picture_File),
          Graph_Save("graphs: PDF", "bay/maxima.pdf", Save_Picture_File),
          Graph_Save("graphs: print to a file", "bay/print.pdf", Print),
          Graph_Save("graphs: numbers as CSV", "bay/maxima.csv", Save_Numbers_File),
          Grid_Save(),
          Graph_Save("graphs: GeoJSON", "bay/map.geojson", Save_Map),
          Graph_Save("graphs: all times", "bay/sand.png",
                     {"bay/sand 1.png", "bay/sand 2.png", "bay/sand 3.png"}, Save_All_Times),
          Place_Save()};
}

}  // namespace barvon::testing
