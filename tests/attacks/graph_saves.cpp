#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "attacks/attacked_saves.h"
#include "graphs/export_bench.h"
#include "graphs/graph_exports.h"
#include "graphs/map_exports.h"
#include "graphs/picture_sequence.h"

namespace barvon::testing {
namespace {

constexpr char kPlace[] = "[Place]\nEasting=1000\nNorthing=2000\nTurn=0\nUnit=ft\nSystem=mine\n";
constexpr char kOtherPlace[] = "[Place]\nEasting=1\nNorthing=2\nTurn=3\nUnit=m\nSystem=mine\n";

/// One page for all saves, with a map and three times. It is small and has drawn its letters once
/// before there are processes.
Bar_Page& Page() {
  static Bar_Page page;
  if (page.map) return page;
  page.map = Shown_Map{{2, 3, 100, 100, {0, 10, 0, 0, 0, 0}}, {5}, "Sand at 20 ft", "mg/l"};
  page.length = 3;
  page.Shown_Picture()->resize(40, 30);
  page.Shown_Picture()->As_Png();
  return page;
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
          [chosen](Attack_Bench& bench) { Choose_In_Dialogs(bench.In(chosen)); },
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
void Save_All_Times(Bar_Page& page, const Results_Held& results) { Save_Sequence(page, results); }
void Print(Bar_Page& page, const Results_Held& results) { Print_Picture(page, results); }

/// What is typed when the program asks for the place. Unit and system that are offered stay.
struct Typed_Place {
  const char *easting, *northing, *turn;
  int unit;
};
constexpr Typed_Place kSame{"1000", "2000", "0", 2}, kAnother{"5000", "7000", "30", 0};

void Answer_Place(const Typed_Place& place) {
  QTimer::singleShot(0, [place] {
    QWidget* const window = QApplication::activeModalWidget();
    if (window == nullptr) return;
    const auto field = [window](const char* name) {
      return window->findChild<QLineEdit*>(QLatin1String(name));
    };
    if (field("txtEasting")->text().isEmpty()) {
      field("txtSystem")->setText(QStringLiteral("mine"));
      window->findChild<QComboBox*>(QStringLiteral("cboUnit"))->setCurrentIndex(place.unit);
    }
    field("txtEasting")->setText(QLatin1String(place.easting));
    field("txtNorthing")->setText(QLatin1String(place.northing));
    field("txtTurn")->setText(QLatin1String(place.turn));
    window->findChild<QPushButton*>(QStringLiteral("Command1(0)"))->click();
  });
}

void Save_Map(Bar_Page& page, const Results_Held& results) {
  Answer_Place(kSame);
  Save_Map_For_Gis(page, results);
}

void Change(Bar_Page&, const Results_Held& results) {
  Answer_Place(kAnother);
  Change_Place(results);
}

Attacked_Save Place_Save() {
  Attacked_Save save = Graph_Save("graphs: place of the grid", "bay/a.place", Change);
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
  Page();
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
