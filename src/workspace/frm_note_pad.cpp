#include "workspace/frm_note_pad.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QFontDatabase>
#include <QMenuBar>
#include <QScrollBar>
#include <QShortcut>
#include <QStatusBar>
#include <QTextBlock>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"
#include "platform/files/line_ends.h"
#include "platform/files/safe_file.h"
#include "platform/qt/print_lines.h"
#include "platform/qt/screen_window.h"
#include "workspace/text_commands.h"

namespace barvon {
namespace {

constexpr QSize kSize{640, 560};  // wide enough for a listing of 80 columns
constexpr char kUntitled[] = "Untitled";
constexpr std::size_t kFirstSlice = 1U << 20;  // what is in view needs no more
constexpr std::size_t kSlice = 8U << 20;
constexpr int kTabStop = 8;
constexpr int kPatience = 200;  // milliseconds

constexpr char kTooLarge[] = "Read only: too large to be edited here";
constexpr char kWouldChange[] = "Read only: holds what an editor would change";

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
  resize(kSize);
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
  menuBar()->addAction(window.menuAction());
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

bool frmNotePad::Load(const std::string& path) {
  auto slices = std::make_unique<File_Slices>();
  if (slices->Open(path) != 0 || slices->size() > kLargestShown) return false;
  const bool again = path == file_;
  if (slices->size() > kLargestEdited) {
    why_read_only_ = kTooLarge;
    const std::size_t caret = again && !Is_Edited() ? view_->Place() : 0;
    const int row = again ? view_->verticalScrollBar()->value() : 0;
    if (!Make_Shown(std::move(slices))) return false;
    if (caret != 0) {
      Read_To_End();
      view_->Go_To(caret);
      view_->verticalScrollBar()->setValue(row);
    }
  } else {
    std::string bytes;
    if (slices->Read(static_cast<std::size_t>(slices->size()), bytes) != 0) return false;
    slices_.reset();
    Text_Content content = Content_Of(bytes);
    if (Can_Be_Edited(content.text)) {
      const int caret = again && Is_Edited() ? edit_->textCursor().position() : 0;
      const int top = again && Is_Edited() ? edit_->verticalScrollBar()->value() : 0;
      Make_Edited(content);
      QTextCursor cursor = edit_->textCursor();
      cursor.setPosition(std::min(caret, std::max(0, edit_->document()->characterCount() - 1)));
      edit_->setTextCursor(cursor);
      edit_->verticalScrollBar()->setValue(top);
    } else {
      why_read_only_ = kWouldChange;
      Text_Rows rows(bytes.size());
      rows.Add(bytes);
      rows.Finish();
      view_->Set_Rows(std::move(rows));
      body_->setCurrentWidget(view_);
      Ready();
    }
  }
  Show_File(path);
  return true;
}

void frmNotePad::Make_Edited(const Text_Content& content) {
  loading_ = true;
  content_ = content;
  edit_->setPlainText(QString::fromStdString(With_Line_Feeds(content.text)));
  body_->setCurrentWidget(edit_);
  view_->Set_Rows(Text_Rows());
  Ready();
}

bool frmNotePad::Make_Shown(std::unique_ptr<File_Slices> slices) {
  std::string first;
  if (slices->Read(kFirstSlice, first) != 0) return false;
  view_->Set_Rows(Text_Rows());  // two large texts at a time would be one too many
  Text_Rows rows(static_cast<std::size_t>(slices->size()));
  rows.Add(first);
  if (slices->At_End()) rows.Finish();
  view_->Set_Rows(std::move(rows));
  body_->setCurrentWidget(view_);
  const bool more = !slices->At_End();
  slices_ = std::move(slices);
  if (!more) slices_.reset();
  Ready();
  if (more) QTimer::singleShot(0, this, [this] { Read_Slice(kSlice); });
  return true;
}

/// The rest comes while the window lives on: what has come is in view and can be gone through.
void frmNotePad::Read_Slice(std::size_t most) {
  if (!slices_) return;
  std::string slice;
  const int error = slices_->Read(most, slice);
  view_->rows().Add(slice);
  const bool over = error != 0 || slices_->At_End();
  if (over) {
    view_->rows().Finish();
    slices_.reset();
    if (error != 0) why_read_only_ = "Read only: the file could not be read to its end";
  }
  view_->Rows_Came();
  Show_Kind();
  if (!over) QTimer::singleShot(0, this, [this] { Read_Slice(kSlice); });
}

void frmNotePad::Read_To_End() {
  while (slices_) {
    const auto slices = slices_.get();
    std::string slice;
    const bool over = slices->Read(kSlice, slice) != 0;
    view_->rows().Add(slice);
    if (!over && !slices->At_End()) continue;
    view_->rows().Finish();
    slices_.reset();
  }
  view_->Rows_Came();
  Show_Kind();
}

/// What is in view is what the file has.
void frmNotePad::Ready() {
  if (!Is_Edited()) {
    const QSignalBlocker quiet(edit_->document());
    edit_->clear();
    content_ = {};
  }
  edit_->setObjectName(Is_Edited() ? QStringLiteral("Text1") : QString());
  view_->setObjectName(Is_Edited() ? QString() : QStringLiteral("Text1"));
  edit_->document()->setModified(false);
  loading_ = false;
  Documents().Set_Dirty(index_, false);
  body_->setFocusProxy(body_->currentWidget());
  body_->currentWidget()->setFocus();
  Show_Place();
  Show_Kind();
}

bool frmNotePad::Read_Again() {
  if (file_.empty()) return false;
  if (!May_Read_Again(index_)) return false;
  if (Load(file_)) return true;
  Show_Warning("File " + file_ + " could not be read again. Its text stays as it was.");
  return false;
}

void frmNotePad::Set_Font(const QString& family) {
  QFont font = edit_->font();
  font.setFamily(family);
  edit_->setFont(font);
  view_->setFont(font);
  edit_->setTabStopDistance(QFontMetricsF(font).horizontalAdvance(QLatin1Char(' ')) * kTabStop);
}

QString frmNotePad::Edited_Text() const {
  // Not toPlainText: it makes blanks of the blanks at which no line breaks.
  QString text = edit_->document()->toRawText();
  text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  return text;
}

std::string frmNotePad::Text() {
  if (Is_Edited()) return Edited_Text().toStdString();
  Read_To_End();
  return Row_Text(view_->rows().Bytes(0, view_->rows().Size()));
}

std::optional<std::string> frmNotePad::Bytes() {
  if (!Is_Edited()) {
    Read_To_End();
    return std::string(view_->rows().Bytes(0, view_->rows().Size()));
  }
  const std::string text = Edited_Text().toStdString();
  saving_ = {content_.encoding, With_Former_Line_Ends(content_.text, text)};
  std::optional<std::string> bytes = Bytes_Of(saving_);
  if (!bytes) {
    if (Ask("The text has letters that its encoding, Windows-1252, does not hold.\n"
            "Do you want to save it as UTF-8?",
            Buttons::YesNo) != Answer::Yes) {
      return std::nullopt;
    }
    saving_.encoding = Text_Encoding::UTF8;
    bytes = Bytes_Of(saving_);
  }
  if (saving_.encoding == Text_Encoding::ASCII) saving_.encoding = Encoding_Of(*bytes);
  return bytes;
}

void frmNotePad::Saved_In(const std::string& file) {
  if (Is_Edited()) {
    content_ = std::exchange(saving_, {});
    edit_->document()->setModified(false);
  }
  Documents().Set_Dirty(index_, false);
  Show_File(file);
  Show_Kind();
}

bool frmNotePad::Find(const QString& text, bool backward) {
  if (Is_Edited()) return Find_Around(*edit_, text, backward);
  Read_To_End();
  return view_->Find(text, backward);
}

bool frmNotePad::Print(QPrinter& printer) {
  Printed_Text printed{QString::fromStdString(Caption()), body_->currentWidget()->font(), 0, {}};
  if (Is_Edited()) {
    QTextBlock block = edit_->document()->begin();
    printed.lines = static_cast<std::size_t>(edit_->document()->blockCount());
    printed.line = [block](std::size_t) mutable {
      QString text = block.text();
      block = block.next();
      return text;
    };
  } else {
    Read_To_End();
    const Text_Rows& rows = view_->rows();
    printed.lines = rows.Rows();
    printed.line = [&rows](std::size_t i) {
      return QString::fromStdString(Row_Text(rows.Bytes(rows.Row_Of(i))));
    };
  }
  return Print_Lines(printer, printed);
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
