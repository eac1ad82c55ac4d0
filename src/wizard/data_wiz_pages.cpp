#include <QButtonGroup>
#include <QIcon>
#include <QVBoxLayout>
#include <vector>

#include "core/desk/analysis_choices.h"
#include "core/keys.h"
#include "platform/qt/fields/note_box.h"
#include "wizard/data_wiz.h"
#include "wizard/wizard_texts.h"

namespace barvon {
namespace {

constexpr QSize kIllustration{360, 240}, kVelocityIllustration{220, 160};

constexpr std::array<const char*, kWizardPages> kPageCaptions = {
    "Analysis and Disposal Type",   "Program Options",
    "General Site Disposal Data",   "General Site Disposal Data",
    "Velocity Profile Information", "Dredged Material Data",
    "Disposal Operations Data",     "Simulation Times and Site Data"};
constexpr std::array<const char*, 4> kVelocityCaptions = {
    "Single Depth Averaged Velocity", "2-Point Velocity Profile for a Constant Depth Grid",
    "Variable Velocity Field for Entire Grid", "Unsteady Velocity Profile"};
constexpr std::array<const char*, 4> kVelocityPictures = {"velocity_average", "velocity_two_point",
                                                          "velocity_field", "velocity_tidal"};

/// An illustration of the third or the last page.
struct Illustration {
  int index;  // of Picture3
  const char* file;
  const char* words;
};
constexpr int kFirstOfGridPage = 0, kFirstOfLastPage = 4;
constexpr Illustration kIllustrations[] = {
    {0, "wizard_grid", "The model grid with its axes, spacings and the disposal point"},
    {1, "wizard_grid_site", "The model grid with the disposal site, in blue, and its point"},
    {2, "wizard_grid_zone", "The model grid with the mixing zone, in red, and the disposal point"},
    {4, "wizard_tracer", "A cloud of tracer that drifts from the disposal point"},
    {5, "wizard_site", "The four edges of the disposal site, measured from top and left"},
    {6, "wizard_zone", "The four edges of the mixing zone, with a zone of initial dilution in it"},
};

/// What a page says: the index of its Text4 and the lines that it takes.
struct Page_Text {
  int index, lines;
  const char* words;
};
constexpr std::array<Page_Text, kWizardPages> kPageTexts = {{{0, 4, kAnalysisText},
                                                             {1, 2, kOptionsText},
                                                             {3, 8, kGridText},
                                                             {2, 4, kTypicalDataText},
                                                             {7, 2, kVelocityText},
                                                             {5, 7, kMaterialText},
                                                             {4, 5, kOperationText},
                                                             {6, 7, kCompleteText}}};

QPixmap Drawing(const char* file, const QSize& size) {
  return QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(file))).pixmap(size);
}

void Fill_Frame(QGroupBox* frame, const ControlArray<QRadioButton>& options) {
  auto* column = new QVBoxLayout(frame);
  for (QRadioButton* option : options) column->addWidget(option);
}

QGroupBox* Option_Frame(const char* caption, const ControlArray<QRadioButton>& options,
                        QWidget* parent) {
  auto* frame = new QGroupBox(QLatin1String(caption), parent);
  Fill_Frame(frame, options);
  return frame;
}

template <class Captions>
void Write_Captions(const ControlArray<QRadioButton>& options, const Captions& captions) {
  for (int i = options.first(); i <= options.last(); ++i) {
    options(i)->setText(QLatin1String(captions[static_cast<std::size_t>(i)]));
  }
}

}  // namespace

void Data_Wiz::Make_Pages() {
  for (int page = 0; page < kWizardPages; ++page) {
    const auto& [index, lines, words] = kPageTexts.at(static_cast<std::size_t>(page));
    Frame1(page)->setTitle(QLatin1String(kPageCaptions.at(static_cast<std::size_t>(page))));
    QPlainTextEdit* text =
        Make_Note_Box(qPrintable(QStringLiteral("Text4(%1)").arg(index)),
                      QStringLiteral("About step %1").arg(page + 1), lines, Frame1(page));
    text->setPlainText(QLatin1String(words));
    Text4.at(static_cast<std::size_t>(page)) = text;
    (new QVBoxLayout(Frame1(page)))->addWidget(text);
    pages_->addWidget(Frame1(page));
  }
  QWidget* const parts[] = {Analysis_Part(), Options_Part(), Grid_Part(), Typical_Data_Part(),
                            Velocity_Part(), nullptr,        nullptr,     Last_Part()};
  for (int page = 0; page < kWizardPages; ++page) {
    auto* column = static_cast<QVBoxLayout*>(Frame1(page)->layout());
    if (parts[page] != nullptr) column->addWidget(parts[page]);
    column->addStretch();
  }
}

QWidget* Data_Wiz::Analysis_Part() {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  auto* description = new QWidget(part);
  Field_Rows rows(description);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  fields_.Add(rows, {"Text1"});
  Text1->setPlaceholderText(QLatin1String(kDescriptionHint));
  Text1->setMinimumWidth(kTitleLength * Text1->fontMetrics().averageCharWidth());
  column->addWidget(description);
  Write_Captions(SSOption3, kMethodCaptions);
  column->addWidget(Option_Frame("Method of Disposal", SSOption3, part));
  Write_Captions(SSOption2, kAnalysisCaptions);
  column->addWidget(Option_Frame("Type of Analysis", SSOption2, part));
  column->addWidget(Check2);
  return part;
}

QWidget* Data_Wiz::Options_Part() {
  auto* part = new QWidget(this);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  Write_Captions(SSOption4, kSimulationCaptions);
  column->addWidget(Option_Frame("Simulation Type", SSOption4, part));
  Fill_Frame(Frame6, SSOption1);
  column->addWidget(Frame6);
  return part;
}

QWidget* Data_Wiz::Grid_Part() {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  for (int i = kFirstOfGridPage; i <= kFirstOfGridPage + 2; ++i) row->addWidget(Picture3(i));
  row->addStretch();
  draw_grid_->setAutoDefault(false);
  row->addWidget(draw_grid_, 0, Qt::AlignBottom);
  return part;
}

QWidget* Data_Wiz::Typical_Data_Part() {
  auto* part = new QWidget(this);
  Field_Rows rows(part);
  rows.layout()->setContentsMargins(0, 0, 0, 0);
  for (int i = 0; i < kTypicalFields; ++i) fields_.Add(rows, {"Text7", i});
  return part;
}

QWidget* Data_Wiz::Velocity_Part() {
  auto* part = new QWidget(this);
  auto* grid = new QGridLayout(part);
  grid->setContentsMargins(0, 0, 0, 0);
  // Each option is in a box of its own; this keeps them one group.
  auto* group = new QButtonGroup(this);
  for (int i = 0; i < kVelocityOptions; ++i) {
    group->addButton(SSOption5(i));
    grid->addWidget(Velocity_Box(i), i / 2, i % 2);
  }
  return part;
}

QWidget* Data_Wiz::Velocity_Box(int option) {
  auto* column = new QVBoxLayout(Frame11(option));
  column->setContentsMargins(8, 4, 8, 4);
  SSOption5(option)->setText(QLatin1String(kVelocityCaptions.at(static_cast<std::size_t>(option))));
  Picture2(option)->setPixmap(
      Drawing(kVelocityPictures.at(static_cast<std::size_t>(option)), kVelocityIllustration));
  Picture2(option)->setAccessibleName(SSOption5(option)->text());
  column->addWidget(SSOption5(option));
  column->addWidget(Picture2(option), 1, Qt::AlignCenter);
  return Frame11(option);
}

QWidget* Data_Wiz::Last_Part() {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  for (int i = kFirstOfLastPage; i <= kFirstOfLastPage + 2; ++i) row->addWidget(Picture3(i));
  row->addStretch();
  for (const auto& [index, file, words] : kIllustrations) {
    Picture3(index)->setPixmap(Drawing(file, kIllustration));
    Picture3(index)->setAccessibleName(QLatin1String(words));
  }
  for (QLabel* picture : Picture3) picture->hide();
  return part;
}

void Data_Wiz::Show_Illustrations(int analysis, bool complete) {
  for (int i = 0; i < kAnalysisTypes; ++i) {
    Picture3(kFirstOfGridPage + i)->setVisible(i == analysis);
    Picture3(kFirstOfLastPage + i)->setVisible(i == analysis && !complete);
  }
}

void Data_Wiz::Order_Controls() {
  std::vector<QWidget*> order = {Text4[kAnalysisPage], Text1};
  const auto add = [&order](const auto& controls) {
    order.insert(order.end(), controls.begin(), controls.end());
  };
  add(SSOption3);
  add(SSOption2);
  order.insert(order.end(), {Check2, Text4[kOptionsPage]});
  add(SSOption4);
  add(SSOption1);
  order.insert(order.end(), {Text4[kGridPage], draw_grid_, Text4[kTypicalDataPage]});
  add(Text7);
  order.push_back(Text4[kVelocityPage]);
  add(SSOption5);
  for (const int page : {kMaterialPage, kOperationPage, kLastPage}) {
    order.push_back(Text4.at(static_cast<std::size_t>(page)));
  }
  Tab_Through(order);
}

}  // namespace barvon
