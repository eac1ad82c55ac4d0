#include "graphs/frm_graphs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "graphs/view_tabs.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"
#include "platform/files/paths.h"
#include "results/drawings/common_times.h"

namespace barvon {
namespace {

constexpr QSize kSize{1120, 800};
constexpr QSize kFrame{16, 48};   // what the desktop puts around a window, at most
constexpr int kLookEvery = 1000;  // milliseconds
constexpr int kStateMargin = 6;
constexpr char16_t kMayBreak = 0x200B;  // a blank without width
constexpr double kTextStep = 1.1;
constexpr int kMostTextSteps = 8;

}  // namespace

frmGraphs::frmGraphs(QWidget* parent)
    : QMainWindow(parent),
      body_(new QStackedWidget(this)),
      whole_state_(new QLabel(this)),
      notice_(new Notice_Page(body_)),
      pictures_(new QWidget(body_)),
      own_title_(new Elided_Label(pictures_)),
      other_title_(new Elided_Label(pictures_)),
      common_times_(new QLabel(pictures_)),
      end_comparison_(new QPushButton(QStringLiteral("&No comparison"), pictures_)),
      tabs_(new View_Tabs(pictures_)),
      usual_text_(QApplication::font().pointSizeF()) {
  setObjectName(QStringLiteral("frmGraphs"));
  Build_Body();
  Build_Status();
  Show_Notice(Notice_Of_Nothing());
  setWindowTitle(QString::fromStdString(Window_Caption("")));
  resize(kSize.boundedTo(screen()->availableSize() - kFrame));
  look_.setInterval(kLookEvery);
  connect(&look_, &QTimer::timeout, this, &frmGraphs::Look_Again);
  look_.start();
}

// Where it is still seen, what loses the keyboard tells so to a window that is whole.
frmGraphs::~frmGraphs() { hide(); }

void frmGraphs::Build_Body() {
  own_title_->setObjectName(QStringLiteral("OwnTitle"));
  other_title_->setObjectName(QStringLiteral("OtherTitle"));
  common_times_->setObjectName(QStringLiteral("CommonTimes"));
  common_times_->setWordWrap(true);
  end_comparison_->setObjectName(QStringLiteral("cmdNoComparison"));
  tabs_->setObjectName(QStringLiteral("Views"));
  tabs_->setAccessibleName(QStringLiteral("Views"));
  tabs_->setDocumentMode(true);
  tabs_->setUsesScrollButtons(true);
  pages_ = Make_Graph_Pages(tabs_);
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    Graph_Page* page = pages_[i];
    tabs_->addTab(page, QLatin1String(kGraphNames[i]));
    connect(page, &Graph_Page::Asked_For, this, [this](int view) {
      Show_View(view);
      if (Graph_Page* asked = Page_In_Front()) asked->Show_Telling();
    });
    connect(page, &Graph_Page::Changed, this, [this, page] {
      if (page == Page_In_Front()) emit Things_Changed();
    });
    connect(page, &Graph_Page::Told, this, [this, page](const QString& words) {
      if (page == Page_In_Front()) told_->setText(words);
    });
  }
  auto* compared = new QHBoxLayout;
  compared->addWidget(other_title_, 1);
  compared->addWidget(end_comparison_);
  auto* titles = new QVBoxLayout;
  titles->setContentsMargins(8, 6, 8, 4);
  titles->setSpacing(2);
  titles->addWidget(own_title_);
  titles->addLayout(compared);
  titles->addWidget(common_times_);
  auto* column = new QVBoxLayout(pictures_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addLayout(titles);
  column->addWidget(tabs_, 1);
  body_->addWidget(notice_);
  body_->addWidget(pictures_);
  auto* all = new QWidget(this);
  auto* rows = new QVBoxLayout(all);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(body_, 1);
  rows->addWidget(whole_state_);
  setCentralWidget(all);

  connect(notice_, &Notice_Page::Open_Asked, this, &frmGraphs::Open);
  connect(end_comparison_, &QPushButton::clicked, this, &frmGraphs::End_Comparison);
  connect(tabs_, &QTabWidget::currentChanged, this, [this] {
    told_->clear();
    Fill_Page_In_Front();
    emit Things_Changed();
  });
}

void frmGraphs::Build_Status() {
  told_ = new Elided_Label(this);
  told_->setObjectName(QStringLiteral("Told"));
  state_ = new Elided_Label(this);
  state_->setObjectName(QStringLiteral("State"));
  state_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  statusBar()->addWidget(told_, 1);
  statusBar()->addWidget(state_, 1);
  whole_state_->setObjectName(QStringLiteral("WholeState"));
  whole_state_->setTextFormat(Qt::PlainText);
  whole_state_->setWordWrap(true);
  whole_state_->setMargin(kStateMargin);
  whole_state_->hide();
}

std::optional<std::string> frmGraphs::Ask_Results(const std::string& title) const {
  return Ask_Open_File({.title = title,
                        .filters = {{"BARVON Data Files (*.DUI)", "*.DUI"},
                                    {"Outputs of a Run (*.DUT)", "*.DUT"},
                                    {"All Files (*)", "*"}},
                        .name = own_ ? Folder_Of(own_->path()) : std::string()});
}

void frmGraphs::Open() {
  if (const auto path = Ask_Results("Open Results")) {
    Show_Results_Of(*path, std::max(tabs_->currentIndex(), 0));
  }
}

void frmGraphs::Show_Results_Of(const std::string& path, int view) {
  own_.emplace(path);
  // What the former project was held against says nothing of this one.
  const std::string ended = other_ ? Ended_Words(other_->path()) : std::string();
  other_.reset();
  shown_.other.reset();
  Say(ended);
  Results_Or_Problem read = own_->Read();
  // What is read next is not held against what another project had.
  shown_.own.reset();
  tabs_->setCurrentIndex(view);
  Take(std::move(read));
}

void frmGraphs::Take(Results_Or_Problem read) {
  setWindowTitle(QString::fromStdString(Window_Caption(own_->path())));
  if (const auto* problem = std::get_if<Result_Problem>(&read)) {
    Show_Notice(Notice_Of(*problem, own_->path()));
    return;
  }
  shown_.own = std::make_shared<const Results>(std::move(std::get<Results>(read)));
  Show_Pages();
}

void frmGraphs::Compare() {
  if (const auto path = Ask_Results("Compare With")) Compare_With(*path);
}

void frmGraphs::Compare_With(const std::string& path) {
  Watched_Outputs other(path);
  Results_Or_Problem read = other.Read();
  if (const auto* problem = std::get_if<Result_Problem>(&read)) {
    Show_Warning("These results can't be compared with: " + problem->Words());
    return;
  }
  other_ = std::move(other);
  // What was saved or ended before would be read as of these two.
  other_word_.clear();
  Show_State(own_word_);
  shown_.other = std::make_shared<const Results>(std::move(std::get<Results>(read)));
  Show_Pages();
}

void frmGraphs::End_Comparison() {
  // The button goes: what it leads to is what the keyboard should be at.
  if (end_comparison_->hasFocus()) tabs_->setFocus();
  other_.reset();
  shown_.other.reset();
  Say_Of_Outputs(own_word_, "");
  if (shown_.own) Show_Pages();
}

void frmGraphs::Look_Again() {
  // A dialog is about what is shown.
  if (QApplication::activeModalWidget() != nullptr) return;
  if (own_) Look_At_Own();
  if (other_) Look_At_Other();
}

void frmGraphs::Look_At_Own() {
  auto read = own_->Look();
  if (!read) return;
  const auto* problem = std::get_if<Result_Problem>(&*read);
  if (problem != nullptr && shown_.own) {
    return Say_Of_Outputs(Kept_Words(*problem, *shown_.own), other_word_);
  }
  const bool fresh = problem == nullptr;
  Take(std::move(*read));
  if (fresh) Say_Of_Outputs(Fresh_Words(*shown_.own), other_word_);
}

void frmGraphs::Look_At_Other() {
  auto read = other_->Look();
  if (!read) return;
  if (const auto* problem = std::get_if<Result_Problem>(&*read)) {
    return Say_Of_Outputs(own_word_, Kept_Words(*problem, *shown_.other));
  }
  shown_.other = std::make_shared<const Results>(std::move(std::get<Results>(*read)));
  Say_Of_Outputs(own_word_, Fresh_Words(*shown_.other));
  if (shown_.own) Show_Pages();
}

Graph_Page* frmGraphs::Page_In_Front() const {
  if (body_->currentWidget() != pictures_) return nullptr;
  return pages_[static_cast<std::size_t>(tabs_->currentIndex())];
}

void frmGraphs::Show_View(int view) {
  if (view < 0 || view >= kGraphViews) return;
  tabs_->setCurrentIndex(view);
  if (Page_In_Front() != nullptr) tabs_->tabBar()->setFocus();
}

void frmGraphs::Show_Pages() {
  behind_.fill(true);
  Show_Titles();
  told_->clear();
  const bool came = body_->currentWidget() != pictures_;
  body_->setCurrentWidget(pictures_);
  Fill_Page_In_Front();
  if (came) tabs_->tabBar()->setFocus();
  emit Things_Changed();
}

/// The other pages get theirs when they come to the front.
void frmGraphs::Fill_Page_In_Front() {
  Graph_Page* page = Page_In_Front();
  if (page == nullptr || !shown_.own) return;
  bool& behind = behind_[static_cast<std::size_t>(tabs_->currentIndex())];
  if (std::exchange(behind, false)) page->Show(shown_);
}

void frmGraphs::Show_Notice(const Graph_Notice& notice) {
  told_->clear();
  notice_->Show(notice);
  body_->setCurrentWidget(notice_);
  notice_->setFocus();
  emit Things_Changed();
}

void frmGraphs::Show_Titles() {
  const bool compares = shown_.other != nullptr;
  own_title_->setText(QString::fromStdString(Title_Line(*shown_.own)));
  if (compares) {
    other_title_->setText(QStringLiteral("Compared with: ") +
                          QString::fromStdString(Title_Line(*shown_.other)));
  }
  const std::string times =
      compares ? Common_Times_Words(*shown_.own, *shown_.other) : std::string();
  common_times_->setText(QString::fromStdString(times));
  common_times_->setVisible(!times.empty());
  other_title_->setVisible(compares);
  end_comparison_->setVisible(compares);
}

void frmGraphs::Say(const std::string& state) {
  own_word_.clear();
  other_word_.clear();
  Show_State(state);
}

// What was said of the one stays when the other's come.
void frmGraphs::Say_Of_Outputs(const std::string& own, const std::string& other) {
  const bool news = own != own_word_ || other != other_word_;
  own_word_ = own;
  other_word_ = other;
  if (news) Show_State(Words_Of_Both(own, other));
}

void frmGraphs::Show_State(const std::string& state) {
  state_->setText(QString::fromStdString(state));
  Fit_State();
}

/// Words that the status bar would cut stand above it, in as many lines as they need.
void frmGraphs::Fit_State() {
  const QString& words = state_->text();
  const bool fits = state_->fontMetrics().horizontalAdvance(words) < width() / 2 - 2 * kStateMargin;
  // A path has no blanks at which a line could end.
  whole_state_->setText(
      QString(words).replace(QLatin1Char('/'), QLatin1Char('/') + QString(QChar(kMayBreak))));
  whole_state_->setAccessibleName(words);
  whole_state_->setVisible(!fits);
  state_->setVisible(fits);
}

void frmGraphs::Change_Text_Size(int steps) {
  text_steps_ = steps == 0 ? 0 : std::clamp(text_steps_ + steps, -kMostTextSteps, kMostTextSteps);
  QFont font = QApplication::font();
  font.setPointSizeF(usual_text_ * std::pow(kTextStep, text_steps_));
  QApplication::setFont(font);
}

/// Names too wide for one line of tabs stand in two: large letters on a small display.
void frmGraphs::Fit_Tab_Names() {
  const QTabBar& bar = *tabs_->tabBar();
  const QFontMetrics letters = bar.fontMetrics();
  int width = 0;
  for (const char* name : kGraphNames) {
    width += letters.horizontalAdvance(QLatin1String(name)) +
             style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, &bar);
  }
  const bool in_two = width > this->width();
  for (int i = 0; i < kGraphViews; ++i) {
    QString name = QLatin1String(kGraphNames[static_cast<std::size_t>(i)]);
    tabs_->tabBar()->setAccessibleTabName(i, name);
    // At the blank that leaves the upper line the longer one, and the lower one a sense.
    const auto blank = name.indexOf(QLatin1Char(' '), name.size() / 2);
    if (in_two && blank > 0) name[blank] = QLatin1Char('\n');
    if (tabs_->tabText(i) != name) tabs_->setTabText(i, name);
  }
}

void frmGraphs::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  Fit_Tab_Names();
  Fit_State();
}

void frmGraphs::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  Fit_Tab_Names();
  Fit_State();
}

void frmGraphs::closeEvent(QCloseEvent* event) {
  // The program ends with its window, not with its help.
  Show_Help({Help_Command::Quit, 0, {}});
  QMainWindow::closeEvent(event);
}

}  // namespace barvon
