#include "workspace/main_boards.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/project_record.h"
#include "core/workspace_port.h"
#include "platform/qt/encoding_validator.h"

namespace barvon {
namespace {

constexpr int kGap = 12;     // between groups
constexpr int kLineGap = 8;  // between the lines of a group
constexpr int kButtonHeight = 30;
constexpr QSize kPicture{28, 28};

QGroupBox* Frame(QGroupBox* frame, const char* name, const char* caption) {
  frame->setObjectName(QLatin1String(name));
  frame->setTitle(QLatin1String(caption));
  return frame;
}

QVBoxLayout* Lines(QGroupBox* frame) {
  auto* lines = new QVBoxLayout(frame);
  lines->setContentsMargins(12, 8, 12, 10);
  lines->setSpacing(kLineGap);
  return lines;
}

/// A label that shows text of the project, whatever characters stand in it.
QLabel* Text(QLabel* label, const char* text = "") {
  label->setTextFormat(Qt::PlainText);
  label->setText(QLatin1String(text));
  return label;
}

/// A check box that shows a state and takes no click.
QCheckBox* Shown_State(QCheckBox* box, const char* name, const char* caption) {
  if (*name != '\0') box->setObjectName(QLatin1String(name));
  box->setText(QLatin1String(caption));
  box->setFocusPolicy(Qt::NoFocus);
  QObject::connect(box, &QCheckBox::clicked, box, [box](bool now) { box->setChecked(!now); });
  return box;
}

void Picture_Button(Latching_Button* button, const char* picture, const char* name) {
  button->setIcon(QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(picture))));
  button->setIconSize(kPicture);
  button->setToolTip(QLatin1String(name));
  button->setAccessibleName(QLatin1String(name));
  button->setFocusPolicy(Qt::StrongFocus);
}

QLayout* Title_Line(Main_Controls& controls) {
  auto* label = new QLabel(QStringLiteral("Project Title"), controls.Frame3D1);
  label->setObjectName(QStringLiteral("Label1"));
  QLineEdit* title = controls.Title_Box;
  title->setObjectName(QStringLiteral("Title_Box"));
  title->setAccessibleName(label->text());
  title->setMaxLength(kTitleLength);
  title->setValidator(new Encoding_Validator(title));
  label->setBuddy(title);
  auto* line = new QHBoxLayout;
  line->setSpacing(kGap);
  line->addWidget(label);
  line->addWidget(title, 1);
  return line;
}

QGroupBox* Data_Categories(Main_Controls& controls) {
  static constexpr const char* kCategories[] = {"Program Options",    "Site Description",
                                                "Velocity Data",      "Material Description",
                                                "Disposal Operation", "Coefficients"};
  auto* frame = Frame(new QGroupBox(controls.Frame3D1), "Frame3D3", "Data Categories");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(12, 8, 12, 10);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(kLineGap);
  for (int i = 0; i < 6; ++i) {
    Text(controls.Label2(i), kCategories[i]);
    Text(controls.Text2(i), i == 5 ? "Default Coefficients Used" : kDataNotEntered);
    controls.Text2(i)->setAccessibleName(QLatin1String(kCategories[i]));
    grid->addWidget(controls.Label2(i), i, 0);
    grid->addWidget(controls.Text2(i), i, 1);
  }
  grid->setColumnStretch(1, 1);
  return frame;
}

QGroupBox* Database_Information(Main_Controls& controls) {
  static constexpr const char* kLines[] = {"Site: NONE", "Month: NONE", "Material Location: NONE",
                                           "Disposal Vessel: NONE"};
  auto* frame = Frame(new QGroupBox(controls.Frame3D1), "Frame3D4", "DataBase Information");
  auto* lines = Lines(frame);
  auto* head = new QHBoxLayout;
  head->addWidget(Shown_State(controls.SSCheck1, "SSCheck1", "DataBase Used"), 1);
  Picture_Button(controls.SSRibbon1(4), "database", "DataBase");
  head->addWidget(controls.SSRibbon1(4));
  lines->addLayout(head);
  for (int i = 0; i < 4; ++i) lines->addWidget(Text(controls.Label3(i), kLines[i]));
  lines->addStretch();
  return frame;
}

QGroupBox* Analysis_Types(Main_Controls& controls) {
  static constexpr const char* kTypes[] = {
      "General Open Water Disposal Analysis", "Section 103 Regulatory Analysis for Ocean Sites",
      "Section 404(b)(1) Regulatory Analysis for US Navigable Waters"};
  auto* frame = Frame(new QGroupBox(controls.Frame3D1), "Frame3D5", "Type of Analysis");
  auto* lines = Lines(frame);
  for (int i = 0; i < 3; ++i) {
    controls.SSOption1(i)->setText(QLatin1String(kTypes[i]));
    lines->addWidget(controls.SSOption1(i));
  }
  return frame;
}

QGroupBox* Disposal_Methods(Main_Controls& controls) {
  static constexpr const char* kMethods[] = {"Disposal from a Multiple Bin Hopper Dredge",
                                             "Disposal from a Split-Hull Barge or Scow"};
  auto* frame = Frame(controls.MethodFrame, "Frame3D6", "Method of Disposal");
  auto* lines = Lines(frame);
  for (int i = 0; i < 2; ++i) {
    controls.SSOption2(i)->setText(QLatin1String(kMethods[i]));
    lines->addWidget(controls.SSOption2(i));
  }
  frame->setEnabled(false);
  return frame;
}

QLayout* Dilution_Line(Main_Controls& controls) {
  auto* label = new QLabel(QStringLiteral("Determine Contaminant Based on Dilution Needs"),
                           controls.Frame3D1);
  label->setObjectName(QStringLiteral("Label7"));
  Picture_Button(controls.SSRibbon2(3), "dilution", "Dilution Calculator");
  label->setBuddy(controls.SSRibbon2(3));
  auto* line = new QHBoxLayout;
  line->setContentsMargins(12, 0, 12, 0);
  line->setSpacing(kGap);
  line->addWidget(controls.SSRibbon2(3));
  line->addWidget(label, 1);
  return line;
}

void Build_Main_Menu_Board(Main_Controls& controls) {
  auto* board = new QVBoxLayout(Frame(controls.Frame3D1, "Frame3D1", "BARVON Main Menu"));
  board->setContentsMargins(14, 12, 14, 14);
  board->setSpacing(kGap);
  board->addLayout(Title_Line(controls));
  auto* state = new QHBoxLayout;
  state->setSpacing(kGap);
  state->addWidget(Data_Categories(controls), 3);
  state->addWidget(Database_Information(controls), 2);
  board->addLayout(state);
  board->addWidget(Analysis_Types(controls));
  board->addWidget(Disposal_Methods(controls));
  board->addStretch();
  board->addLayout(Dilution_Line(controls));
  board->addStretch();
}

QGroupBox* Output_Options(Main_Controls& controls, QWidget* parent) {
  static constexpr const char* kPrints[] = {"Print Convective Descent?", "Print Collapse Phase?",
                                            "Specify Own Print Times?"};
  auto* frame = Frame(new QGroupBox(parent), "Frame3D9", "Output Options");
  auto* lines = Lines(frame);
  for (QLabel* line : controls.Label5) lines->addWidget(Text(line));
  for (int i = 0; i < 3; ++i) lines->addWidget(Shown_State(controls.SSCheck2(i), "", kPrints[i]));
  return frame;
}

QGroupBox* Summary(const char* name, const char* caption, const ControlArray<QLabel>& labels,
                   QWidget* parent) {
  auto* frame = Frame(new QGroupBox(parent), name, caption);
  auto* lines = Lines(frame);
  for (QLabel* line : labels) lines->addWidget(Text(line));
  lines->addStretch();
  return frame;
}

void Build_Data_Board(Main_Controls& controls) {
  auto* board = new QGridLayout(Frame(controls.Frame3D2, "Frame3D2", ""));
  board->setContentsMargins(10, 12, 10, 10);
  board->setSpacing(10);
  auto* options = Frame(new QGroupBox(controls.Frame3D2), "Frame3D7", "Program Options");
  auto* option_lines = Lines(options);
  option_lines->addWidget(Output_Options(controls, options));
  option_lines->addStretch();
  auto* operation = Summary("Frame3D12", "Disposal Operation", controls.Label6, controls.Frame3D2);
  auto* depression = Shown_State(controls.SSCheck3, "SSCheck3", "Specify Depression Dumping?");
  static_cast<QVBoxLayout*>(operation->layout())->insertWidget(0, depression);
  board->addWidget(options, 0, 0);
  board->addWidget(Summary("Frame3D10", "Site Description", controls.SiteLabel, controls.Frame3D2),
                   0, 1);
  board->addWidget(
      Summary("Frame3D11", "Material Description", controls.Matlabel, controls.Frame3D2), 1, 0);
  board->addWidget(operation, 1, 1);
  board->setColumnStretch(0, 1);
  board->setColumnStretch(1, 1);
  board->setRowStretch(2, 1);
}

QLayout* Command_Row(Main_Controls& controls) {
  static constexpr const char* kCaptions[] = {
      "Enter/Edit &Data",     "&Run Simulation", "View &Graphics", "&Update Database",
      "Return To &Main Menu", "E&xit",           "&Help",          "View &Output",
      "&Save Data File",      "Data &Wizard"};
  static constexpr int kPlaces[2][5] = {{0, 8, 1, 7, 2}, {4, 9, 3, 6, 5}};
  auto* grid = new QGridLayout;
  grid->setSpacing(6);
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 5; ++column) {
      const int index = kPlaces[row][column];
      QPushButton* button = controls.SSPanel3(index);
      button->setText(QLatin1String(kCaptions[index]));
      button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
      button->setMinimumHeight(kButtonHeight);
      grid->addWidget(button, row, column);
    }
  }
  // In proportion to the longer caption of each column.
  constexpr int kShares[5] = {142, 112, 124, 102, 112};
  for (int column = 0; column < 5; ++column) grid->setColumnStretch(column, kShares[column]);
  // Help tells the topic of the control that has the focus, so it must not take it.
  controls.SSPanel3(6)->setFocusPolicy(Qt::TabFocus);
  // These letters are the menu bar's.
  for (const int index : {2, 6}) controls.SSPanel3(index)->setShortcut(QKeySequence());
  return grid;
}

void Set_Tab_Order(Main_Controls& controls) {
  std::vector<QWidget*> order = {controls.Title_Box, controls.SSRibbon1(4)};
  order.insert(order.end(), controls.SSOption1.begin(), controls.SSOption1.end());
  order.insert(order.end(), controls.SSOption2.begin(), controls.SSOption2.end());
  order.push_back(controls.SSRibbon2(3));
  for (const int index : {0, 8, 1, 7, 2, 4, 9, 3, 6, 5}) order.push_back(controls.SSPanel3(index));
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
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
  Set_Tab_Order(controls);
  Show_Main_Board(controls);
}

void Show_Main_Board(Main_Controls& controls) {
  controls.Frame3D2->hide();
  controls.Frame3D1->show();
}

void Show_Data_Board(Main_Controls& controls) {
  controls.Frame3D1->hide();
  controls.Frame3D2->show();
}

}  // namespace barvon
