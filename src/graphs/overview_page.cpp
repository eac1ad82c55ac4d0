#include "graphs/overview_page.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <cstddef>
#include <utility>

#include "graphs/graph_names.h"
#include "graphs/overview_data.h"
#include "pictures/shape_painter.h"
#include "pictures/shapes/inks.h"
#include "platform/qt/scrolled_part.h"
#include "results/drawings/balance_drawing.h"
#include "results/drawings/map_view.h"
#include "results/drawings/maxima_drawing.h"
#include "results/drawings/result_words.h"
#include "results/summary.h"

namespace barvon {
namespace {

constexpr double kTitleSize = 1.25;           // of the program's letters
constexpr int kBarLines = 2, kAxisLines = 6;  // of the program's text
constexpr int kLeastLetters = 100;            // of a page with its halves beside each other

/// As high as it must be: the page scrolls only where it has to.
class Balance_Bars : public Bar_Picture {
 public:
  Balance_Bars() : Bar_Picture(QStringLiteral("Balance"), QStringLiteral("balance")) {}
  QSize sizeHint() const override { return {Bar_Picture::sizeHint().width(), minimumHeight()}; }
};

QLabel* Told_Text(QVBoxLayout* column, const QString& name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setWordWrap(true);
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  column->addWidget(label);
  return label;
}

void Write_In(QLabel* label, Colour ink) {
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, To_QColor(ink));
  label->setPalette(palette);
}

QLabel* Heading(QVBoxLayout* column, const char* text) {
  auto* label = new QLabel(QLatin1String(text));
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  column->addWidget(label);
  return label;
}

}  // namespace

Overview_Page::Overview_Page(QWidget* parent) : Graph_Page(parent) {
  auto* contents = new QWidget;
  halves_ = new QBoxLayout(QBoxLayout::LeftToRight, contents);
  halves_->addWidget(Left_Half(), 1);
  halves_->addWidget(Right_Half());
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(0, 0, 0, 0);
  page->addWidget(new Scrolled_Part(contents));
}

Overview_Page::Column Overview_Page::Add_Column(const char* suffix) {
  Column column{};
  column.box = new QWidget;
  auto* rows = new QVBoxLayout(column.box);
  rows->setContentsMargins(0, 0, 0, 0);
  const auto text = [&](const char* name) {
    return Told_Text(rows, QLatin1String(name) + QLatin1String(suffix));
  };
  column.title = text("Title");
  column.made = text("Made");
  column.warning = text("Warning");
  Write_In(column.warning, kWarnInk);
  Heading(rows, "Verdicts");
  column.verdicts = text("Verdicts");
  column.deposit = text("Deposit");
  rows->addStretch();
  columns_->addWidget(column.box, 1);
  return column;
}

QWidget* Overview_Page::Left_Half() {
  auto* half = new QWidget;
  auto* rows = new QVBoxLayout(half);
  rows->setContentsMargins(0, 0, 0, 0);
  columns_ = new QHBoxLayout;
  own_ = Add_Column("");
  other_ = Add_Column("2");
  rows->addLayout(columns_);
  auto* when = new QHBoxLayout;
  balance_time_ = new QComboBox;
  // The times come with the outputs, which may be after the page is first seen: the row gives the
  // box its width, not what it holds then.
  balance_time_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  balance_time_->setMinimumContentsLength(10);
  balance_time_->setObjectName(QStringLiteral("BalanceTime"));
  balance_time_->setAccessibleName(QStringLiteral("Balance"));
  auto* label = new QLabel(QStringLiteral("&Balance:"));
  label->setBuddy(balance_time_);
  when->addWidget(label);
  when->addWidget(balance_time_, 1);
  when->addStretch(1);
  rows->addLayout(when);
  balance_ = new Balance_Bars;
  balance_->setObjectName(QStringLiteral("Balance"));
  rows->addWidget(balance_, 1);
  QLabel* largest = Heading(rows, "Largest values at the output times");
  table_ = new QTableWidget;
  table_->setObjectName(QStringLiteral("Largest"));
  table_->setAccessibleName(largest->text());
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rows->addWidget(table_);
  connect(table_->horizontalScrollBar(), &QScrollBar::rangeChanged, this,
          &Overview_Page::Fit_Table);
  connect(balance_time_, &QComboBox::currentIndexChanged, this, [this] {
    Show_Balance();
    emit Changed();
  });
  return half;
}

QWidget* Overview_Page::Right_Half() {
  auto* half = new QWidget;
  auto* rows = new QVBoxLayout(half);
  rows->setContentsMargins(0, 0, 0, 0);
  for (int view = 1; view < kGraphViews; ++view) {
    const auto at = static_cast<std::size_t>(view);
    auto* button = new Picture_Button(QLatin1String(kGraphNames[at]));
    button->setObjectName(QStringLiteral("Open(%1)").arg(view));
    connect(button, &QPushButton::clicked, this, [this, view] { emit Asked_For(view); });
    rows->addWidget(button, 1);
    small_[at - 1] = button;
  }
  return half;
}

void Overview_Page::Show(const Shown_Results& shown) {
  const bool anew = shown_.own && shown_.own->path != shown.own->path;
  shown_ = shown;
  Show_Words();
  // Another project begins at its end.
  if (anew) {
    const QSignalBlocker silent(balance_time_);
    balance_time_->setCurrentIndex(0);
  }
  Fill_Times();
  Show_Balance();
  Show_Table();
  Fit_To_Letters();
  Show_Small_Pictures();
  emit Changed();
}

void Overview_Page::Show_Words() {
  const auto fill = [](const Column& column, const Overview_Words& words) {
    column.title->setText(QString::fromStdString(words.title));
    column.made->setText(QString::fromStdString(words.made));
    column.warning->setText(QString::fromStdString(words.warning));
    column.verdicts->setText(QString::fromStdString(words.verdicts));
    column.deposit->setText(QString::fromStdString(words.deposit));
  };
  other_.box->setVisible(shown_.other != nullptr);
  if (!shown_.other) {
    fill(own_, Words_Of(*shown_.own, ""));
    return;
  }
  const auto names = Project_Names(*shown_.own, *shown_.other);
  fill(own_, Words_Of(*shown_.own, names.first));
  fill(other_, Words_Of(*shown_.other, names.second));
}

void Overview_Page::Fill_Times() {
  const QSignalBlocker silent(balance_time_);
  const QVariant kept = balance_time_->currentData();
  balance_time_->clear();
  balance_time_->addItem(QStringLiteral("at the end"));
  for (const double time : Balance_Times(*shown_.own)) {
    balance_time_->addItem(QStringLiteral("at ") + QString::fromStdString(Time_Words(time)), time);
  }
  balance_time_->setCurrentIndex(kept.isValid() ? std::max(0, balance_time_->findData(kept)) : 0);
}

std::optional<double> Overview_Page::Balance_Time() const {
  const QVariant time = balance_time_->currentData();
  return time.isValid() ? std::optional(time.toDouble()) : std::nullopt;
}

void Overview_Page::Show_Balance() {
  if (!shown_.own) return;
  Bar_Chart chart = Balance_Chart(*shown_.own, shown_.other.get(), Balance_Time());
  balance_->Show(std::move(chart));
}

void Overview_Page::Show_Table() {
  const Overview_Table largest = Largest_Table(*shown_.own, shown_.other.get());
  const int rows = static_cast<int>(largest.rows.size());
  const int columns = static_cast<int>(largest.headings.size());
  table_->clear();
  table_->setRowCount(rows);
  table_->setColumnCount(columns);
  QStringList headings;
  for (const std::string& heading : largest.headings) {
    // In two lines a heading is no wider than what is below it.
    headings << QString::fromStdString(heading).replace(QLatin1String(" the "),
                                                        QLatin1String(" the\n"));
  }
  table_->setHorizontalHeaderLabels(headings);
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      const std::string& cell =
          largest.rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
      table_->setItem(row, column, new QTableWidgetItem(QString::fromStdString(cell)));
    }
  }
}

// Parts that have a size of their own in letters.
void Overview_Page::Fit_To_Letters() {
  QFont large = font();
  large.setBold(true);
  if (large.pointSizeF() > 0) large.setPointSizeF(kTitleSize * large.pointSizeF());
  for (const Column& column : {own_, other_}) column.title->setFont(large);
  const int bars = static_cast<int>(balance_->Drawn().chart.bars.size());
  balance_->setMinimumHeight(fontMetrics().height() * (kAxisLines + kBarLines * bars));
  balance_->updateGeometry();
  table_->horizontalHeader()->setStretchLastSection(false);
  table_->resizeColumnsToContents();
  table_->resizeRowsToContents();
  table_->horizontalHeader()->setStretchLastSection(true);
  Fit_Table();
  Place_Halves();
}

// All rows are seen; columns scroll where the page is narrower.
void Overview_Page::Fit_Table() {
  const QScrollBar* bar = table_->horizontalScrollBar();
  table_->setFixedHeight(
      table_->verticalHeader()->length() + table_->horizontalHeader()->sizeHint().height() +
      2 * table_->frameWidth() + (bar->maximum() > 0 ? bar->sizeHint().height() : 0));
}

// In a narrow window, or with large letters, the small pictures are below the rest.
void Overview_Page::Place_Halves() {
  const bool narrow = width() < kLeastLetters * fontMetrics().averageCharWidth();
  halves_->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void Overview_Page::resizeEvent(QResizeEvent* event) {
  Graph_Page::resizeEvent(event);
  Place_Halves();
}

void Overview_Page::changeEvent(QEvent* event) {
  Graph_Page::changeEvent(event);
  if (event->type() == QEvent::FontChange && shown_.own) Fit_To_Letters();
}

void Overview_Page::Show_Small_Pictures() {
  const Telling_Moment moment = Telling_Moment_Of(*shown_.own);
  Maxima_Choice choice;
  choice.species = moment.species;
  const Maxima_Drawing maxima = Draw_Maxima(*shown_.own, nullptr, choice);
  small_[0]->Show([maxima](const Canvas& canvas) { return Maxima_Shapes(maxima, canvas); },
                  maxima.description);
  const auto show_map = [&](Picture_Button* button, const Map_View& view) {
    Map_Drawing map = Draw_Map(Content_Of(*shown_.own, nullptr, Nearest_View(*shown_.own, view)));
    const std::string words = map.description;
    map.summary.clear();  // in small there is room for the title
    button->Show([map = std::move(map)](const Canvas& canvas) { return Map_Shapes(map, canvas); },
                 words);
  };
  Map_View view;
  view.species = moment.species;
  view.depth = moment.depth;
  view.time = moment.map_time;
  show_map(small_[1], view);
  view = {};
  view.kind = Map_Kind::thickness;
  view.time = moment.bed_time;
  show_map(small_[2], view);
}

Picture* Overview_Page::Shown_Picture() { return balance_; }

bool Overview_Page::Has_Content() const { return !balance_->Drawn().chart.bars.empty(); }

std::string Overview_Page::Numbers() const {
  return Balance_Csv(*shown_.own, shown_.other.get(), Balance_Time());
}

QString Overview_Page::Picture_Name() const {
  return QStringLiteral("Balance ") + balance_time_->currentText();
}

}  // namespace barvon
