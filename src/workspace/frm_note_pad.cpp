#include "workspace/frm_note_pad.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QFontDatabase>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/help_viewer.h"
#include "platform/files/line_ends.h"
#include "platform/qt/screen_window.h"
#include "workspace/text_commands.h"

namespace barvon {
namespace {

constexpr int kFirstHeight = 560;
/// The companion solver says in the first line of an output, in 104 letters, what it is not.
constexpr int kFirstColumns = 105;
constexpr char kUntitled[] = "Untitled";
constexpr int kTabStop = 8;
constexpr int kPatience = 200;  // milliseconds

const char* Line_End_Name(const std::string& end) {
  if (end == "\r\n") return "CR LF";
  return end == "\n" ? "LF" : "CR";
}

/// Stops at the first one that stays open.
void Close_All() {
  for (const int i : Documents().Open_Ones()) {
    auto* window = dynamic_cast<frmNotePad*>(Documents().Document(i));
    if (window != nullptr && !window->close()) return;
  }
}

}  // namespace

frmNotePad::frmNotePad(ProjectRecord& record)
    : record_(record),
      body_(new QStackedWidget(this)),
      edit_(new QPlainTextEdit(body_)),
      view_(new Large_Text_View(body_)) {
  Name_Screen(*this, Row_Of_Screen("frmNotePad").name);
  setAttribute(Qt::WA_DeleteOnClose);
  Build_Body();
  Build_File_Menu();
  Build_Edit_Menu();
  Build_Status();
  resize(First_Width(), kFirstHeight);
  index_ = Documents().Open(*this);
  setProperty("tag", index_);
  Show_File("");
  Make_Edited({});
}

frmNotePad::~frmNotePad() { Documents().Close(index_); }

void frmNotePad::Build_Body() {
  const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  for (QWidget* text : {static_cast<QWidget*>(edit_), static_cast<QWidget*>(view_)}) {
    text->setAccessibleName(QStringLiteral("Text of the file"));
    text->setFont(font);
    body_->addWidget(text);
  }
  edit_->setLineWrapMode(QPlainTextEdit::NoWrap);
  edit_->installEventFilter(this);
  edit_->setAcceptDrops(false);  // a project that is dropped would come as its name
  Set_Font(font.family());
  find_bar_ = new Find_Bar(
      {QStringLiteral("Find"), QStringLiteral("F&ind"), QStringLiteral("Not in this text."),
       [this](const QString& text, bool backward) { return Find(text, backward); }},
      this);
  find_bar_->hide();
  auto* away = new QShortcut(QKeySequence(Qt::Key_Escape), find_bar_);
  away->setContext(Qt::WidgetWithChildrenShortcut);
  connect(away, &QShortcut::activated, this, [this] {
    find_bar_->hide();
    body_->currentWidget()->setFocus();
  });
  auto* middle = new QWidget(this);
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(body_, 1);
  column->addWidget(find_bar_);
  setCentralWidget(middle);

  connect(edit_->document(), &QTextDocument::modificationChanged, this, [this](bool changed) {
    if (!loading_) Documents().Set_Dirty(index_, changed);
    Show_Kind();
  });
  connect(edit_, &QPlainTextEdit::cursorPositionChanged, this, [this] { Show_Place(); });
  view_->When_Moved([this] { Show_Place(); });
}

int frmNotePad::First_Width() const {
  const int letters =
      QFontMetrics(edit_->font()).horizontalAdvance(QLatin1Char('0')) * kFirstColumns;
  const int around = 2 * static_cast<int>(edit_->document()->documentMargin()) +
                     2 * edit_->frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return std::min(letters + around, screen()->availableSize().width());
}

void frmNotePad::Build_File_Menu() {
  QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
  Add(file, "&Save", "Ctrl+S", "Save", [this] { Save_Text(index_, record_); });
  Add(file, "Save &As", "Ctrl+Shift+S", "SaveAs", [this] { Save_Text_As(index_, record_); });
  QAction* again = Add(file, "&Read Again", "Ctrl+R", "ReadAgain", [this] { Read_Again(); });
  connect(file, &QMenu::aboutToShow, this, [this, again] { again->setEnabled(!file_.empty()); });
  connect(file, &QMenu::aboutToHide, this, [again] { again->setEnabled(true); });
  file->addSeparator();
  Add(file, "&Print", "Ctrl+P", "Print", [this] {
    Documents().Set_Active(index_);
    Port().text.print();
  });
  file->addSeparator();
  Add(file, "&Close", "Ctrl+W", "Close", [this] { close(); });
  Add(file, "Close A&ll", "Ctrl+Shift+W", "CloseAll", Close_All);
}

void frmNotePad::Build_Edit_Menu() {
  QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edit"));
  // The keys of the first ones are the text field's own, as everywhere.
  const QList<QAction*> only_edited = {
      Add(edit, "&Undo", "", "Undo", [this] { edit_->undo(); }),
      Add(edit, "Re&do", "", "Redo", [this] { edit_->redo(); }),
      Add(edit, "Cu&t", "", "Cut", [this] { edit_->cut(); }),
      Add(edit, "&Paste", "", "Paste", [this] { edit_->paste(); }),
  };
  connect(edit, &QMenu::aboutToShow, this, [this, only_edited] {
    for (QAction* item : only_edited) item->setEnabled(Is_Edited());
  });
  Add(edit, "&Copy", "", "Copy", [this] { Is_Edited() ? edit_->copy() : view_->Copy(); });
  Add(edit, "Select &All", "", "SelectAll",
      [this] { Is_Edited() ? edit_->selectAll() : view_->Mark_All(); });
  edit->addSeparator();
  Add(edit, "&Find", "Ctrl+F", "Find", [this] { find_bar_->Open(); });
  Add(edit, "Find &Next", "F3", "FindNext", [this] { find_bar_->Find(false); });
  Add(edit, "Find Pre&vious", "Shift+F3", "FindPrevious", [this] { find_bar_->Find(true); });
  auto* help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this, [] { Show_Topic(Row_Of_Screen("frmNotePad").topic); });
}

QAction* frmNotePad::Add(QMenu* menu, const char* caption, const char* key, const char* name,
                         std::function<void()> action) {
  QAction* item = menu->addAction(QLatin1String(caption));
  item->setObjectName(QStringLiteral("NotePad") + QLatin1String(name));
  item->setShortcut(QKeySequence(QLatin1String(key)));
  connect(item, &QAction::triggered, this, [action = std::move(action)] { action(); });
  return item;
}

void frmNotePad::Share_Menus(const QMenu& font, const QMenu& window) {
  // Its caption's letter is File's in this bar.
  QMenu* own = menuBar()->addMenu(QStringLiteral("F&ont"));
  connect(own, &QMenu::aboutToShow, this, [own, &font] {
    if (own->isEmpty()) own->addActions(font.actions());
  });
  // A menu that two bars share has no face for assistive tools when the first of them has gone.
  QMenu* windows = menuBar()->addMenu(window.title());
  connect(windows, &QMenu::aboutToShow, this, [windows, &window] {
    windows->clear();
    windows->addActions(window.actions());
  });
}

void frmNotePad::Build_Status() {
  state_ = new QLabel(this);
  state_->setObjectName(QStringLiteral("State"));
  place_ = new QLabel(this);
  place_->setObjectName(QStringLiteral("Place"));
  kind_ = new QLabel(this);
  kind_->setObjectName(QStringLiteral("Kind"));
  place_->setContentsMargins(4, 0, 8, 0);
  statusBar()->addWidget(place_);
  statusBar()->addWidget(state_, 1);
  statusBar()->addPermanentWidget(kind_);
}

std::string frmNotePad::Caption() const { return file_.empty() ? kUntitled : file_; }

void frmNotePad::Show_File(const std::string& file) {
  file_ = file;
  // In a window title this sequence is a place holder; doubled it is itself.
  setWindowTitle(
      QString::fromStdString(Caption()).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void frmNotePad::Come_To_Front() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  // A question that follows is to stand over this window: the display says when it is in front.
  if (isActiveWindow()) return;
  QEventLoop wait;
  connect(windowHandle(), &QWindow::activeChanged, &wait, &QEventLoop::quit);
  QTimer::singleShot(kPatience, &wait, &QEventLoop::quit);
  wait.exec(QEventLoop::ExcludeUserInputEvents);
}

void frmNotePad::Set_Font(const QString& family) {
  QFont font = edit_->font();
  font.setFamily(family);
  edit_->setFont(font);
  view_->setFont(font);
  edit_->setTabStopDistance(QFontMetricsF(font).horizontalAdvance(QLatin1Char(' ')) * kTabStop);
}

bool frmNotePad::Find(const QString& text, bool backward) {
  if (Is_Edited()) return Find_Around(*edit_, text, backward);
  Read_To_End();
  return view_->Find(text, backward);
}

void frmNotePad::Show_Place() {
  if (place_ == nullptr) return;
  std::size_t line = 1;
  std::size_t column = 1;
  if (Is_Edited()) {
    const QTextCursor cursor = edit_->textCursor();
    line = static_cast<std::size_t>(cursor.blockNumber()) + 1;
    column = static_cast<std::size_t>(cursor.positionInBlock()) + 1;
  } else {
    const Text_Rows::Line_And_Column where = view_->rows().Where(view_->Place());
    line = where.line;
    column = where.column;
  }
  place_->setText(QStringLiteral("Line %1, Column %2").arg(line).arg(column));
}

void frmNotePad::Show_Kind() {
  if (state_ == nullptr) return;
  if (Is_Edited()) {
    state_->setText(edit_->document()->isModified() ? QStringLiteral("Changed") : QString());
    kind_->setText(QStringLiteral("%1, %2").arg(
        QLatin1String(Encoding_Name(content_.encoding)),
        QLatin1String(Line_End_Name(Prevailing_Line_End(content_.text)))));
    return;
  }
  state_->setText(QLatin1String(slices_ ? "Reading..." : why_read_only_));
  kind_->setText(
      QStringLiteral("%1 MB").arg(static_cast<double>(view_->rows().Size()) / 1e6, 0, 'f', 1));
}

void frmNotePad::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Documents().Set_Active(index_);
}

/// The text field would break its line by a character that is no line end to anyone else.
bool frmNotePad::eventFilter(QObject* watched, QEvent* event) {
  if (watched == edit_ && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::InsertLineSeparator)) {
    edit_->textCursor().insertBlock();
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

void frmNotePad::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (closing_) return;
  closing_ = true;
  const bool may_close = May_Close_Text(index_, record_);
  closing_ = false;
  if (!may_close) return;
  Documents().Close(index_);
  event->accept();
}

}  // namespace barvon
