#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/ask/message_box.h"
#include "platform/files/line_ends.h"
#include "platform/qt/print_lines.h"
#include "workspace/frm_note_pad.h"
#include "workspace/text_commands.h"

// What a text window reads, gives back, saves and prints.

namespace barvon {
namespace {

constexpr std::size_t kFirstSlice = 1U << 20;  // what is in view needs no more
constexpr std::size_t kSlice = 8U << 20;

constexpr char kTooLarge[] = "Read only: too large to be edited here";
constexpr char kWouldChange[] = "Read only: holds what an editor would change";

}  // namespace

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

}  // namespace barvon
