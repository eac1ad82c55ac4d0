// The least that looks like the main window: a window with the same number of menus, entries, tools
// and controls of the same kinds in two boards, and nothing behind them.

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr int kEntries[] = {16, 12, 0, 6, 4, 2, 9, 4, 4};  // of each menu
constexpr int kTools = 11;

struct Board {
  int labels, fields, options, boxes, pictures, frames;
};
constexpr Board kBoards[] = {{18, 1, 5, 1, 2, 4}, {20, 0, 9, 6, 5, 9}};
constexpr int kCommands = 10, kOptionButtons = 3;

void Build_Menus(QMainWindow& window) {
  int menu_number = 0;
  for (const int entries : kEntries) {
    const QString title = QStringLiteral("Menu &%1").arg(++menu_number);
    if (entries == 0) {
      window.menuBar()->addAction(title);
      continue;
    }
    QMenu* menu = window.menuBar()->addMenu(title);
    for (int i = 1; i <= entries; ++i) menu->addAction(QStringLiteral("Entry &%1").arg(i));
  }
}

template <class Control>
void Add(int count, QGridLayout& grid, QWidget* parent) {
  for (int i = 0; i < count; ++i) {
    auto* control = new Control(parent);
    if constexpr (requires { control->setText(QString()); }) {
      control->setText(QStringLiteral("Control %1").arg(i));
    }
    grid.addWidget(control, grid.count() / 4, grid.count() % 4);
  }
}

QWidget* Build_Board(const Board& board, QWidget* parent) {
  auto* frame = new QGroupBox(QStringLiteral("Board"), parent);
  auto* grid = new QGridLayout(frame);
  Add<QLabel>(board.labels, *grid, frame);
  Add<QLineEdit>(board.fields, *grid, frame);
  Add<QRadioButton>(board.options, *grid, frame);
  Add<QCheckBox>(board.boxes, *grid, frame);
  Add<QToolButton>(board.pictures, *grid, frame);
  Add<QGroupBox>(board.frames, *grid, frame);
  return frame;
}

}  // namespace

int main(int count, char** values) {
  QApplication application(count, values);
  QMainWindow window;
  Build_Menus(window);
  QToolBar* bar = window.addToolBar(QStringLiteral("Tools"));
  for (int i = 1; i <= kTools; ++i) bar->addAction(QStringLiteral("T%1").arg(i));
  auto* centre = new QWidget(&window);
  auto* column = new QVBoxLayout(centre);
  for (const Board& board : kBoards) column->addWidget(Build_Board(board, centre));
  column->itemAt(1)->widget()->hide();
  auto* commands = new QGridLayout;
  Add<QPushButton>(kCommands + kOptionButtons, *commands, centre);
  column->addLayout(commands);
  window.setCentralWidget(centre);
  window.statusBar()->showMessage(QStringLiteral("Ready"));
  window.setFixedSize(627, 735);
  window.show();
  return QApplication::exec();
}
