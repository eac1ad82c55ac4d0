#include "graphs/maxima_page.h"

#include <QEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "platform/qt/fields/number_field.h"
#include "platform/qt/scrolled_part.h"
#include "results/drawings/result_words.h"
#include "results/plain_numbers.h"
#include "results/telling_time.h"

namespace barvon {
namespace {

constexpr char kHowToRead[] =
    "Point at the plot, or press Left and Right in it, to read the values.";
constexpr int kFarDown = 10'000;   // pixels
constexpr int kLeastLetters = 95;  // of a page with its choices in rows

QLabel* Label_For(QWidget* field, const char* text) {
  auto* label = new QLabel(QLatin1String(text));
  label->setBuddy(field);
  QString name = QString::fromLatin1(text);
  field->setAccessibleName(name.remove(QLatin1Char(':')).remove(QLatin1Char('&')));
  return label;
}

// What stays beside each other, from the left.
void Add_Part(QBoxLayout* row, std::initializer_list<QWidget*> controls) {
  auto* part = new QHBoxLayout;
  for (QWidget* control : controls) part->addWidget(control);
  part->addStretch();
  row->addLayout(part);
}

}  // namespace

Maxima_Page::Maxima_Page(QWidget* parent) : Graph_Page(parent) {
  auto* contents = new QWidget;
  auto* column = new QVBoxLayout(contents);
  column->addWidget(Choices());
  plot_ = new Maxima_Plot;
  plot_->setObjectName(QStringLiteral("MaximaPlot"));
  column->addWidget(plot_, 1);
  reading_ = new QLabel(QLatin1String(kHowToRead));
  reading_->setObjectName(QStringLiteral("Reading"));
  reading_->setWordWrap(true);
  reading_->setTextFormat(Qt::PlainText);
  column->addWidget(reading_);
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(0, 0, 0, 0);
  page->addWidget(new Scrolled_Part(contents));
  connect(plot_, &Maxima_Plot::Read, this, [this](const QString& words) {
    reading_->setText(words.isEmpty() ? QString::fromLatin1(kHowToRead) : words);
    emit Told(words);
  });
}

QWidget* Maxima_Page::Choices() {
  auto* choices = new QWidget;
  auto* rows = new QVBoxLayout(choices);
  rows->setContentsMargins(0, 0, 0, 0);
  species_ = new QComboBox;
  species_->setObjectName(QStringLiteral("Species"));
  depth_ = new QComboBox;
  depth_->setObjectName(QStringLiteral("Depth"));
  held_ = new QLineEdit;
  held_->setObjectName(QStringLiteral("HeldAgainst"));
  Make_Number_Field(held_, [](const std::string& typed) -> std::string {
    if (typed.empty() || Number_Of(typed)) return "";
    return "no number: the curves are held against nothing";
  });
  held_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  held_label_ = Label_For(held_, "Hold a&gainst:");
  for (QComboBox* combo : {species_, depth_}) {
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    combo->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  }
  what_ = new QBoxLayout(QBoxLayout::LeftToRight);
  Add_Part(what_,
           {Label_For(species_, "&Species:"), species_, Label_For(depth_, "&Depth:"), depth_});
  Add_Part(what_, {held_label_, held_});
  what_->addStretch();
  rows->addLayout(what_);
  curves_ = new QBoxLayout(QBoxLayout::LeftToRight);
  inside_ = Add_Check("", "Inside");
  outside_ = Add_Check("", "Outside");
  outside_zid_ = Add_Check("Outside the &ZID", "OutsideZid");
  limits_ = Add_Check("&Limits", "Limits");
  logarithmic_ = Add_Check("Log&arithmic", "Logarithmic");
  logarithmic_->setChecked(false);
  Add_Part(curves_, {inside_, outside_, outside_zid_});
  Add_Part(curves_, {limits_, logarithmic_});
  curves_->addStretch();
  rows->addLayout(curves_);
  for (QCheckBox* check : {inside_, outside_, outside_zid_, limits_, logarithmic_}) {
    connect(check, &QCheckBox::toggled, this, &Maxima_Page::Draw);
  }
  connect(species_, &QComboBox::currentIndexChanged, this, &Maxima_Page::Draw);
  connect(depth_, &QComboBox::currentIndexChanged, this, &Maxima_Page::Draw);
  connect(held_, &QLineEdit::textChanged, this, &Maxima_Page::Draw);
  return choices;
}

QCheckBox* Maxima_Page::Add_Check(const char* caption, const char* name) {
  auto* check = new QCheckBox(QLatin1String(caption));
  check->setObjectName(QLatin1String(name));
  check->setChecked(true);
  return check;
}

void Maxima_Page::Show(const Shown_Results& shown) {
  const bool anew = !shown_.own || shown_.own->path != shown.own->path;
  shown_ = shown;
  Fill_Species();
  Fill_Depths();
  if (anew) {
    Choose_Telling();
    // A value that one project was held against says nothing on another.
    const QSignalBlocker silent(held_);
    held_->clear();
  }
  const auto either = [&](bool (*has)(const Results&)) {
    return has(*shown_.own) || (shown_.other && has(*shown_.other));
  };
  const bool site = either(&Has_Site);
  const auto name = QString::fromStdString(Site_Name(*shown_.own, shown_.other.get()));
  inside_->setText(QStringLiteral("&Inside the ") + name);
  outside_->setText(QStringLiteral("&Outside the ") + name);
  inside_->setVisible(site);
  outside_->setVisible(site);
  outside_zid_->setVisible(either(&Has_Zid));
  limits_->setVisible(either([](const Results& results) { return !results.limits.empty(); }));
  Draw();
}

// In a narrow window, or with large letters, a row becomes two.
void Maxima_Page::Place_Choices() {
  const bool narrow = width() < kLeastLetters * fontMetrics().averageCharWidth();
  for (QBoxLayout* row : {what_, curves_}) {
    row->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  }
}

// Room for the longest reading, so that the plot stays as it is while it is read.
void Maxima_Page::Fit_Reading() {
  QString longest = QString::fromLatin1(kHowToRead);
  for (const double time : Reading_Times(plot_->Drawn())) {
    const QString words = QString::fromStdString(Reading_Words(plot_->Drawn(), time));
    if (words.size() > longest.size()) longest = words;
  }
  const QRect room(0, 0, std::max(plot_->width(), plot_->minimumSizeHint().width()), kFarDown);
  reading_->setMinimumHeight(
      reading_->fontMetrics().boundingRect(room, Qt::TextWordWrap, longest).height());
}

void Maxima_Page::changeEvent(QEvent* event) {
  Graph_Page::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  Place_Choices();
  Fit_Reading();
}

void Maxima_Page::resizeEvent(QResizeEvent* event) {
  Graph_Page::resizeEvent(event);
  Place_Choices();
  Fit_Reading();
}

void Maxima_Page::Fill_Species() {
  const QSignalBlocker silent(species_);
  const QString kept = species_->currentText();
  species_->clear();
  for (const Result_Species& species : shown_.own->species) {
    species_->addItem(QString::fromStdString(species.name));
  }
  const int same = kept.isEmpty() ? -1 : species_->findText(kept);
  species_->setCurrentIndex(same >= 0 ? same : Telling_Moment_Of(*shown_.own).species - 1);
  species_->setEnabled(species_->count() > 1);
}

void Maxima_Page::Fill_Depths() {
  const QSignalBlocker silent(depth_);
  const QVariant kept = depth_->currentData();
  depth_->clear();
  depth_->addItem(QStringLiteral("All, the largest"));
  for (const double depth : Output_Depths(*shown_.own)) {
    depth_->addItem(QString::fromStdString(Depth_Words(depth)), depth);
  }
  depth_->setCurrentIndex(kept.isValid() ? std::max(0, depth_->findData(kept)) : 0);
}

void Maxima_Page::Choose_Telling() {
  const QSignalBlocker species(species_), depth(depth_);
  species_->setCurrentIndex(Telling_Moment_Of(*shown_.own).species - 1);
  depth_->setCurrentIndex(0);
  for (QCheckBox* check : {inside_, outside_, outside_zid_, limits_}) {
    const QSignalBlocker silent(check);
    check->setChecked(true);
  }
}

void Maxima_Page::Show_Telling() {
  if (!shown_.own) return;
  Choose_Telling();
  Draw();
}

Maxima_Choice Maxima_Page::Chosen() const {
  Maxima_Choice choice;
  choice.species = species_->currentIndex() + 1;
  if (depth_->currentData().isValid()) choice.depth = depth_->currentData().toDouble();
  choice.logarithmic = logarithmic_->isChecked();
  choice.inside = inside_->isChecked();
  choice.outside = outside_->isChecked();
  choice.outside_zid = outside_zid_->isChecked();
  choice.limits = limits_->isChecked();
  choice.held_against = Number_Of(held_->text().toStdString());
  return choice;
}

void Maxima_Page::Draw() {
  if (!shown_.own) return;
  Maxima_Drawing drawing = Draw_Maxima(*shown_.own, shown_.other.get(), Chosen());
  held_label_->setText(
      drawing.unit.empty()
          ? QStringLiteral("Hold a&gainst:")
          : QStringLiteral("Hold a&gainst (%1):").arg(QString::fromStdString(drawing.unit)));
  plot_->Show(std::move(drawing));
  Fit_Reading();
  emit Changed();
}

Picture* Maxima_Page::Shown_Picture() { return plot_; }

bool Maxima_Page::Has_Content() const { return !plot_->Drawn().curves.empty(); }

std::string Maxima_Page::Numbers() const { return Maxima_Csv(plot_->Drawn()); }

QString Maxima_Page::Picture_Name() const {
  return QString::fromStdString(plot_->Drawn().title) + QStringLiteral(" against time");
}

}  // namespace barvon
