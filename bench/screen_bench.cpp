// What the screens of the largest grid cost, 96 x 96: opening them, filling their table anew beside
// a bare view over a bare model, and a cell that is typed while the picture follows. A goal is held
// against the processor time of this process, which is the time that passes on a machine that does
// nothing else; both are printed. Ends with 1 when a goal is missed.
//
//   QT_QPA_PLATFORM=offscreen screen_bench [ROUNDS] [open|fill|edit]

#include <qcustomplot.h>

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableView>
#include <QTemporaryDir>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

#include "core/book_numbers.h"
#include "core/desk/open_file.h"
#include "core/desk/project_hold.h"
#include "core/desk/screen_register.h"
#include "core/keys.h"
#include "core/project_record.h"
#include "figures.h"
#include "painted.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/light_palette.h"
#include "platform/qt/qt_services.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "program_screens.h"
#include "workspace/main_window.h"

namespace {

using namespace barvon;
using namespace barvon::bench;

constexpr int kPoints = kMaxGridPoints;
constexpr double kMostToOpen = 33;  // ms, two frames of a display
constexpr double kMostOfBare = 1.5;

void Demand(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::exit(2);
}

/// The least that shows a grid of numbers.
class Bare_Model : public QAbstractTableModel {
 public:
  int rowCount(const QModelIndex& = {}) const override { return kPoints; }
  int columnCount(const QModelIndex& = {}) const override { return kPoints; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
      return QString::number(numbers_[Place(index)], 'f', 2);
    }
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DisplayRole) return QAbstractTableModel::headerData(section, orientation, role);
    return (orientation == Qt::Horizontal ? QStringLiteral("Col %1") : QStringLiteral("Row %1"))
        .arg(section + 1);
  }
  Qt::ItemFlags flags(const QModelIndex&) const override {
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
  }
  bool setData(const QModelIndex& index, const QVariant& value, int) override {
    numbers_[Place(index)] = value.toString().toDouble();
    emit dataChanged(index, index);
    return true;
  }
  void Fill(double number) {
    beginResetModel();
    for (double& each : numbers_) each = number;
    endResetModel();
  }

 private:
  static std::size_t Place(const QModelIndex& index) {
    return static_cast<std::size_t>(index.row()) * kPoints +
           static_cast<std::size_t>(index.column());
  }
  std::vector<double> numbers_ = std::vector<double>(std::size_t{kPoints} * kPoints, 1.0);
};

/// A bare table of the size and the cells of another one.
class Bare_Table {
 public:
  explicit Bare_Table(const QTableView& other) {
    view.setModel(&model);
    view.setHorizontalScrollMode(other.horizontalScrollMode());
    view.verticalHeader()->setDefaultSectionSize(other.rowHeight(0));
    view.horizontalHeader()->setDefaultSectionSize(other.columnWidth(0));
    view.resize(other.size());
  }
  Bare_Model model;
  QTableView view;
};

void Load_Sample() {
  Demand(Open_Project(BARVON_SAMPLES "/Variable_96_By_96.DUI", Project()), "No sample.");
  Project().ShowMode = 0;  // screens open beside each other
}

template <class T>
T* Child(QWidget* window, const char* name) {
  T* child = window->findChild<T*>(QLatin1String(name));
  Demand(child != nullptr, name);
  return child;
}

Input_Screen* Opened(const Screen_Row& row) {
  Demand(Open_Screen(row, false), "A screen does not open.");
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* screen = dynamic_cast<Input_Screen*>(window);
    if (screen != nullptr && screen->isVisible()) return screen;
  }
  Demand(false, "A screen did not open.");
  return nullptr;
}

void Close(Input_Screen* screen) {
  screen->Unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
}

/// From the command to the picture on the display.
void Measure_Opening(const Screen_Row& row, const char* picture, int rounds, Figures& figures) {
  Painted painted;
  std::vector<Cost> costs;
  for (int round = 0; round < rounds; ++round) {
    Input_Screen* screen = nullptr;
    costs.push_back(Cost_Of([&] {
      screen = Opened(row);
      painted.Wait_For(Child<QWidget>(screen, picture)->findChild<QCustomPlot*>());
    }));
    Close(screen);
  }
  const Cost cost = Median(costs);
  const std::string name = std::string(row.name) + " opens";
  figures.Note((name + ", elapsed").c_str(), cost.elapsed, "ms");
  figures.Judge(name.c_str(), cost.processor, "ms", kMostToOpen);
  figures.Note((name + ", the first time").c_str(), costs[0].processor, "ms");
}

void Measure_Filling(int rounds, Figures& figures) {
  F1Book book(kBookNumbers);
  book.resize(600, 400);
  {
    const Table_Fill fill(book.table());
    book.table().MaxRow(kPoints);
    book.table().MaxCol(kPoints);
    book.table().NumberFormat(book.table().TableRange(), "##0.00");
    for (int i = 1; i <= kPoints; ++i) {
      book.table().RowText(i, "Row " + std::to_string(i));
      book.table().ColText(i, "Col " + std::to_string(i));
    }
  }
  Painted painted;
  book.show();
  painted.Wait_For(book.viewport());
  Bare_Table bare(book);
  bare.view.show();
  painted.Wait_For(bare.view.viewport());
  double number = 1;
  const Turns turns = Take_Turns(
      rounds,
      [&] {
        {
          const Table_Fill fill(book.table());
          for (int row = 1; row <= kPoints; ++row) {
            for (int col = 1; col <= kPoints; ++col) book.table().NumberRC(row, col, number);
          }
        }
        painted.Wait_For(book.viewport());
      },
      [&] {
        number = number < 90 ? number + 0.5 : 1;
        bare.model.Fill(number);
        painted.Wait_For(bare.view.viewport());
      });
  figures.Note("a table filled anew", turns.program.processor, "ms");
  figures.Note("a bare one filled anew", turns.limit.processor, "ms");
  figures.Note("ratio, elapsed", turns.program.elapsed / turns.limit.elapsed, "");
  figures.Judge("a table filled anew beside a bare one",
                turns.program.processor / turns.limit.processor, "", kMostOfBare);
}

/// The plotting library draws the picture once more, with one cell changed: nothing of the screen
/// has a part in it.
void Draw_Again(QCustomPlot& plot, double number) {
  const QSignalBlocker alone(&plot);
  for (int i = 0; i < plot.plottableCount(); ++i) {
    auto* map = dynamic_cast<QCPColorMap*>(plot.plottable(i));
    if (map != nullptr) map->data()->setCell(0, 0, number);
  }
  plot.replot(QCustomPlot::rpQueuedRefresh);
}

/// One cell of an open screen typed over and over, beside the least that shows the same: a cell of
/// a bare table, and the same picture drawn by its library.
void Measure_Editing(const Screen_Row& row, const char* table, const char* picture, int rounds,
                     Figures& figures) {
  Painted painted;
  Input_Screen* screen = Opened(row);
  auto* book = Child<F1Book>(screen, table);
  auto* plot = Child<QWidget>(screen, picture)->findChild<QCustomPlot*>();
  painted.Wait_For(plot);
  Bare_Table bare(*book);
  bare.view.show();
  painted.Wait_For(bare.view.viewport());
  int number = 0;
  const auto type = [&](QTableView& view) {
    const QString text = QString::number(10 + ++number % 7);
    Demand(view.model()->setData(view.model()->index(0, 0), text, Qt::EditRole), "No edit.");
  };
  const auto screen_follows = [&] {
    type(*book);
    painted.Wait_For(plot);
  };
  const auto bare_table = [&] {
    type(bare.view);
    painted.Wait_For(bare.view.viewport());
  };
  const Turns turns = Take_Turns(rounds, screen_follows, [&] {
    bare_table();
    Draw_Again(*plot, 10 + number % 7);
    painted.Wait_For(plot);
  });
  const Turns alone = Take_Turns(rounds, screen_follows, bare_table);
  Close(screen);
  const std::string name = std::string("a cell typed in ") + row.name;
  figures.Note((name + ", picture following").c_str(), turns.program.processor, "ms");
  figures.Note("in a bare table, the same picture drawn", turns.limit.processor, "ms");
  figures.Note("in a bare table without a picture", alone.limit.processor, "ms");
  figures.Note("ratio, elapsed", turns.program.elapsed / turns.limit.elapsed, "");
  figures.Judge((name + " beside the least").c_str(),
                turns.program.processor / turns.limit.processor, "", kMostOfBare);
}

}  // namespace

int main(int count, char** values) {
  // The offscreen display tells of what it can't do at every window.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication application(count, values);
  const int rounds = count > 1 ? std::atoi(values[1]) : 21;
  const std::string_view part = count > 2 ? values[2] : "";
  Apply_Light_Palette(application);
  const QTemporaryDir folder;
  const Qt_Services services;
  Main main(folder.path().toStdString());
  Register_Program_Screens(&main);
  main.show();
  Load_Sample();
  Figures figures;
  if (part.empty() || part == "open") {
    Measure_Opening(Row_Of_Screen("frmGridDescrip"), "DepthMap", rounds, figures);
    Measure_Opening(Row_Of_Screen("frmVelocity"), "VelocityArrows", rounds, figures);
  }
  if (part.empty() || part == "fill") Measure_Filling(rounds, figures);
  if (part.empty() || part == "edit") {
    Measure_Editing(Row_Of_Screen("frmGridDescrip"), "F1Book1", "DepthMap", rounds, figures);
    Measure_Editing(Row_Of_Screen("frmVelocity"), "F1Book2(0)", "VelocityArrows", rounds, figures);
  }
  std::fflush(nullptr);
  Release_Project();  // no lock stays beside the sample
  std::_Exit(figures.Exit_Code());
}
