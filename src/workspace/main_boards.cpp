#include "workspace/main_boards.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "core/velocity_types.h"
#include "platform/qt/fields/option_paint.h"
#include "platform/qt/tab_order.h"
#include "platform/qt/tool_bar_keys.h"
#include "workspace/board_parts.h"
#include "workspace/main_help.h"

namespace barvon {
namespace {

constexpr int kGap = 8;  // between the board and the row of commands
constexpr int kButtonHeight = 28;

constexpr int kCommandRows = 2, kCommandColumns = 5;
constexpr Command_Button kReadingOrder[kCommandRows * kCommandColumns] = {
    kEnterData,    kSaveDataFile, kRunSimulation,  kViewOutput, kViewGraphics,
    kReturnToMenu, kDataWizard,   kUpdateDatabase, kShowHelp,   kExitProgram};

QLayout* Command_Row(Main_Controls& controls) {
  static constexpr const char* kCaptions[] = {
      "Enter/Edit &Data",     "&Run Simulation", "View &Graphics", "&Update Database",
      "Return To &Main Menu", "E&xit",           "&Help",          "View &Output",
      "&Save Data File",      "Data &Wizard"};
  auto* grid = new QGridLayout;
  grid->setSpacing(6);
  for (int row = 0; row < kCommandRows; ++row) {
    for (int column = 0; column < kCommandColumns; ++column) {
      const Command_Button index = kReadingOrder[row * kCommandColumns + column];
      QPushButton* button = controls.SSPanel3(index);
      button->setText(QLatin1String(kCaptions[index]));
      button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
      button->setMinimumHeight(kButtonHeight);
      grid->addWidget(button, row, column);
    }
  }
  // In proportion to the longer caption of each column.
  constexpr int kShares[kCommandColumns] = {142, 112, 124, 102, 112};
  for (int column = 0; column < kCommandColumns; ++column) {
    grid->setColumnStretch(column, kShares[column]);
  }
  // Help tells the topic of the control that has the focus, so it must not take it.
  controls.SSPanel3(kShowHelp)->setFocusPolicy(Qt::TabFocus);
  return grid;
}

/// The toolbar, both boards and the row of commands in reading order; what is out of view is passed
/// over.
void Order_Controls(Main_Controls& c) {
  std::vector<QWidget*> order;
  const auto add = [&order](const auto& controls) {
    order.insert(order.end(), controls.begin(), controls.end());
  };
  add(Let_Tab_Reach(*c.Toolbar1));
  order.insert(order.end(), {c.Title_Box, c.SSCheck1, c.SSRibbon1(kDataBaseRibbon)});
  add(c.SSOption1);
  add(c.SSOption2);
  order.push_back(c.SSRibbon2(kDilutionRibbon));
  add(c.SSOption3);
  add(c.SSOption4);
  add(c.SSCheck2);
  add(c.SSPanel5);
  // The left column of the data board, then the right one.
  order.insert(order.end(), {c.SSCheck4, c.SSRibbon1(kMaterialRibbon), c.SSRibbon1(kWaterRibbon)});
  for (int form = 0; form < kVelocityForms; ++form) {
    order.push_back(c.Option3D1(form));
    if (form == kSingleForm) order.push_back(c.Check3D1);
  }
  order.insert(order.end(), {c.SSRibbon1(kVelocityRibbon), c.SSRibbon1(kSiteRibbon), c.SSCheck3,
                             c.SSRibbon1(kOperationRibbon)});
  for (const Command_Button index : kReadingOrder) order.push_back(c.SSPanel3(index));
  add(c.status_area->findChildren<QPushButton*>());
  Set_Tab_Order(order);
  c.Title_Box->setFocus();
}

/// Whoever works by keys goes on in the board that takes this one's place.
bool Has_Focus(const Main_Controls& controls, const QWidget* board) {
  const QWidget* active = controls.window->focusWidget();
  return active != nullptr && board->isAncestorOf(active);
}

}  // namespace

void Build_Boards(Main_Controls& controls) {
  Build_Main_Menu_Board(controls);
  Build_Data_Board(controls);
  auto* centre = new QWidget(controls.window);
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(10, 8, 10, 8);
  layout->setSpacing(kGap);
  layout->addWidget(controls.Frame3D1, 1);
  layout->addWidget(controls.Frame3D2, 1);
  layout->addLayout(Command_Row(controls));
  controls.window->setCentralWidget(centre);
  Order_Controls(controls);
  Set_Help_Topics(controls);
  Show_Main_Board(controls);
}

void Show_Main_Board(Main_Controls& controls) {
  const bool has_focus = Has_Focus(controls, controls.Frame3D2);
  controls.Frame3D2->hide();
  controls.Frame3D1->show();
  if (has_focus) controls.Title_Box->setFocus();
}

void Show_Data_Board(Main_Controls& controls) {
  const bool has_focus = Has_Focus(controls, controls.Frame3D1);
  controls.Frame3D1->hide();
  controls.Frame3D2->show();
  if (has_focus) {
    QRadioButton* first = controls.SSOption3(std::max(0, Chosen_Option(controls.SSOption3)));
    first->setFocus(Qt::ShortcutFocusReason);
  }
}

}  // namespace barvon
