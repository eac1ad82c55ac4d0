#include <QGridLayout>
#include <QHBoxLayout>
#include <vector>

#include "core/desk/analysis_choices.h"
#include "core/velocity_types.h"
#include "workspace/board_parts.h"
#include "workspace/main_controls.h"

namespace barvon {
namespace {

constexpr int kGap = 6;      // between frames
constexpr int kLineGap = 3;  // between the lines of a frame

/// A hint under the options of its frame, with room for that many lines whatever it says.
QLabel* Hint(QLabel* label, int lines) {
  Text(label)->setWordWrap(true);
  label->setMinimumHeight(lines * label->fontMetrics().lineSpacing());
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

QGroupBox* Options(const char* name, const char* caption, const ControlArray<QRadioButton>& options,
                   const char* const* captions, QWidget* parent) {
  auto* frame = Frame(new QGroupBox(parent), name, caption);
  auto* lines = Lines(frame, kLineGap);
  for (QRadioButton* option : options) {
    option->setText(QLatin1String(*captions++));
    lines->addWidget(option);
  }
  return frame;
}

QGroupBox* Simulation_Type(Main_Controls& controls, QWidget* parent) {
  auto* frame =
      Options("Frame3D8", kSimulationFrame, controls.SSOption3, kSimulationCaptions.data(), parent);
  frame->layout()->addWidget(Hint(controls.Label4(0), 3));
  return frame;
}

QGroupBox* Evaluation_Type(Main_Controls& controls, QWidget* parent) {
  static constexpr const char* kTypes[] = {"Conservative Tracer/Tier II Further Testing",
                                           "Tier II - Water Quality Comparison",
                                           "Tier III - Toxicity Comparison"};
  auto* frame = Options("Frame3D13", kEvaluationFrame, controls.SSOption4, kTypes, parent);
  // The hint keeps its place while the third option is hidden.
  static_cast<QVBoxLayout*>(frame->layout())->addStretch();
  frame->layout()->addWidget(Hint(controls.Label4(1), 2));
  return frame;
}

QGroupBox* Output_Options(Main_Controls& controls, QWidget* parent) {
  static constexpr const char* kPrints[] = {"Print Convective Descent?", "Print Collapse Phase?",
                                            "Specify Own Print Times?"};
  static constexpr const char* kLines[] = {"Simulation Duration: ", "Long-Term Time Step: "};
  auto* frame = Frame(new QGroupBox(parent), "Frame3D9", "Output Options");
  auto* grid = new QGridLayout(frame);
  // A duration of seven digits is to be read whole.
  grid->setContentsMargins(8, kLineGap, 6, kLineGap + 2);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kLineGap);
  for (int i = 0; i < 2; ++i) grid->addWidget(Text(controls.Label5(i), kLines[i]), i, 0);
  for (int i = 0; i < 3; ++i) {
    grid->addWidget(Shown_State(controls.SSCheck2(i), "", kPrints[i]), i, 1);
  }
  grid->setColumnStretch(0, 1);
  return frame;
}

QLayout* Option_Buttons(Main_Controls& controls) {
  static constexpr const char* kCaptions[] = {"Enter/Edit &Coefficients", "Enter/Edit &Evaluation",
                                              "Enter/Edit O&ptions"};
  auto* column = new QVBoxLayout;
  column->setContentsMargins(0, kLineGap, 0, 0);
  column->setSpacing(kLineGap);
  for (int i = 0; i < kOptionButtons; ++i) {
    controls.SSPanel5(i)->setText(QLatin1String(kCaptions[i]));
    column->addWidget(controls.SSPanel5(i));
  }
  return column;
}

QGroupBox* Program_Options(Main_Controls& controls) {
  auto* frame = Frame(new QGroupBox(controls.Frame3D2), "Frame3D7", "Program Options");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(8, kLineGap, 8, 8);
  grid->setSpacing(kGap);
  grid->addWidget(Simulation_Type(controls, frame), 0, 0);
  grid->addWidget(Evaluation_Type(controls, frame), 0, 1);
  auto* below = new QHBoxLayout;
  below->setSpacing(kGap + 2);
  below->addWidget(Output_Options(controls, frame), 1);
  below->addLayout(Option_Buttons(controls));
  grid->addLayout(below, 1, 0, 1, 2);
  grid->setColumnStretch(0, 4);
  grid->setColumnStretch(1, 5);
  return frame;
}

/// A column of lines, the last ones with the picture buttons at their right.
QGroupBox* With_Pictures(QGroupBox* frame, const std::vector<QWidget*>& lines, int beside,
                         const std::vector<Latching_Button*>& pictures) {
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(8, kLineGap, 6, kLineGap + 2);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kLineGap);
  const int last = static_cast<int>(lines.size());
  for (int row = 0; row < last; ++row) {
    grid->addWidget(lines[row], row, 0, 1, row < last - beside ? 2 : 1);
  }
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kGap);
  for (Latching_Button* picture : pictures) buttons->addWidget(picture);
  grid->addLayout(buttons, last - beside, 1, beside, 1, Qt::AlignRight | Qt::AlignBottom);
  grid->setColumnStretch(0, 1);
  return frame;
}

QGroupBox* Material(Main_Controls& controls) {
  controls.SSCheck4->setObjectName(QStringLiteral("SSCheck4"));
  controls.SSCheck4->setText(QStringLiteral("Use JBFC Coefficient?"));
  for (QLabel* line : controls.Matlabel) Text(line);
  // The line of the moisture content goes with the JBFC coefficient.
  return With_Pictures(
      Frame(new QGroupBox(controls.Frame3D2), "Frame3D11", "Material Description"),
      {controls.Matlabel(3), controls.Matlabel(4), controls.Matlabel(6), controls.SSCheck4,
       controls.Matlabel(5)},
      2,
      {Picture_Button(controls.SSRibbon1(kMaterialRibbon), "material", "Material Description"),
       Picture_Button(controls.SSRibbon1(kWaterRibbon), "density", "Water Density")});
}

QGroupBox* Velocity(Main_Controls& controls) {
  std::vector<QWidget*> lines;
  for (int form = 0; form < kVelocityForms; ++form) {
    controls.Option3D1(form)->setText(QLatin1String(Option_Of_Form(Velocity_Form(form))));
    lines.push_back(controls.Option3D1(form));
    if (form == kSingleForm) lines.push_back(controls.Check3D1);
  }
  controls.Check3D1->setObjectName(QStringLiteral("Check3D1"));
  controls.Check3D1->setText(QStringLiteral("Use a Logarithmic Velocity Profile ?"));
  return With_Pictures(
      Frame(new QGroupBox(controls.Frame3D2), "Frame3D14", "Velocity Data"), lines, 2,
      {Picture_Button(controls.SSRibbon1(kVelocityRibbon), "velocity", "Velocity Data")});
}

QGroupBox* Site(Main_Controls& controls) {
  std::vector<QWidget*> lines;
  for (QLabel* line : controls.SiteLabel) lines.push_back(Text(line));
  return With_Pictures(
      Frame(new QGroupBox(controls.Frame3D2), "Frame3D10", "Site Description"), lines, 2,
      {Picture_Button(controls.SSRibbon1(kSiteRibbon), "site", "Site Description")});
}

QGroupBox* Operation(Main_Controls& controls) {
  std::vector<QWidget*> lines;
  for (QLabel* line : controls.Label6) lines.push_back(Text(line));
  lines.push_back(Shown_State(controls.SSCheck3, "SSCheck3", "Specify Depression Dumping?"));
  return With_Pictures(
      Frame(new QGroupBox(controls.Frame3D2), "Frame3D12", "Disposal Operation"), lines, 2,
      {Picture_Button(controls.SSRibbon1(kOperationRibbon), "operation", "Disposal Operation")});
}

}  // namespace

void Build_Data_Board(Main_Controls& controls) {
  auto* board = new QGridLayout(Frame(controls.Frame3D2, "Frame3D2", ""));
  board->setContentsMargins(6, 6, 6, 6);
  board->setSpacing(kGap);
  auto* left = new QVBoxLayout;
  auto* right = new QVBoxLayout;
  for (QVBoxLayout* column : {left, right}) column->setSpacing(kGap);
  left->addWidget(Material(controls), 1);
  left->addWidget(Velocity(controls), 1);
  right->addWidget(Site(controls), 1);
  right->addWidget(Operation(controls), 1);
  board->addWidget(Program_Options(controls), 0, 0, 1, 2);
  board->addLayout(left, 1, 0);
  board->addLayout(right, 1, 1);
  board->setColumnStretch(0, 5);  // a volume of seven digits is to be read whole
  board->setColumnStretch(1, 4);
  board->setRowStretch(1, 1);
}

}  // namespace barvon
