#include <QProgressDialog>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/ask/message_box.h"
#include "platform/files/line_ends.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/qt/print_lines.h"
#include "workspace/frm_note_pad.h"
#include "workspace/text_commands.h"

// What a text window reads, gives back, saves and prints.

namespace barvon {
namespace {

constexpr std::size_t kFirstSlice = 1U << 20;  // what is in view needs no more
constexpr std::size_t kSlice = 8U << 20;
constexpr int kManyPages = 200;
constexpr int kSteps = 1000;     // of the progress box
constexpr int kUnnoticed = 500;  // milliseconds that nobody minds waiting

constexpr char kTooLarge[] = "Read only: too large to be edited here";
constexpr char kWouldChange[] = "Read only: holds what an editor would change";
constexpr char kNotWhole[] = "Read only: the file could not be read to its end";

}  // namespace

bool frmNotePad::Load(const std::string& path) {
  auto slices = std::make_unique<File_Slices>();
  if (slices->Open(path) != 0 || slices->size() > kLargestShown) return false;
  const bool again = path == file_;
  const File_Trace trace = slices->trace();
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
    const auto size = static_cast<std::size_t>(slices->size());
    if (slices->Read(size, bytes) != 0 || bytes.size() != size) return false;
    slices_.reset();
    whole_ = true;
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
  trace_ = trace;
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
  whole_ = more || first.size() == slices->size();
  slices_ = std::move(slices);
  if (!more) slices_.reset();
  Ready();
  if (more) QTimer::singleShot(0, this, [this] { Read_Slice(); });
  return true;
}

/// False when nothing more comes.
bool frmNotePad::Take_Slice() {
  std::string slice;
  const bool failed = slices_->Read(kSlice, slice) != 0;
  view_->rows().Add(slice);
  if (!failed && !slices_->At_End()) return true;
  view_->rows().Finish();
  // One that has been cut short since it was opened ends without an error.
  whole_ = !failed && view_->rows().Size() == slices_->size();
  if (!whole_) why_read_only_ = kNotWhole;
  slices_.reset();
  return false;
}

/// The rest comes while the window lives on: what has come is in view and can be gone through.
void frmNotePad::Read_Slice() {
  if (!slices_) return;
  if (Take_Slice()) QTimer::singleShot(0, this, [this] { Read_Slice(); });
  view_->Rows_Came();
  Show_Kind();
}

void frmNotePad::Read_To_End() {
  while (slices_ && Take_Slice()) {
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
    if (!whole_) {
      Show_Warning("File " + file_ +
                   " could not be read to its end. A part of it is not saved as the whole.");
      return std::nullopt;
    }
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

bool frmNotePad::Changed_On_Disk() const {
  const std::optional<File_Trace> now = Trace_Of(Path_To_Write(file_));
  return now && now != trace_;
}

void frmNotePad::Saved_In(const std::string& file) {
  if (Is_Edited()) {
    content_ = std::exchange(saving_, {});
    edit_->document()->setModified(false);
  }
  trace_ = Trace_Of(file);
  Documents().Set_Dirty(index_, false);
  Show_File(file);
  Show_Kind();
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
  const int pages = Estimated_Pages(printer, printed);
  if (pages > kManyPages &&
      Ask("The text takes about " + std::to_string(pages) + " pages. Print it?", Buttons::YesNo) !=
          Answer::Yes) {
    return true;
  }
  QProgressDialog box(QStringLiteral("Printing %1").arg(QString::fromStdString(Name_Of(Caption()))),
                      QStringLiteral("Cancel"), 0, kSteps, this);
  box.setWindowTitle(QLatin1String(kMessageTitle));
  box.setWindowModality(Qt::ApplicationModal);  // what is printed must stay as it is
  box.setMinimumDuration(kUnnoticed);
  printed.go_on = [&box](double share) {
    box.setValue(static_cast<int>(share * kSteps));
    return !box.wasCanceled();
  };
  return Print_Lines(printer, printed);
}

}  // namespace barvon
