#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QStackedWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/project_record.h"
#include "platform/files/file_slices.h"
#include "platform/files/file_trace.h"
#include "platform/files/text_content.h"
#include "platform/qt/find_bar.h"
#include "platform/qt/large_text_view.h"
#include "workspace/text_documents.h"

namespace barvon {

/// A text document in a window of its own, with its own File menu, so that a save never has two
/// meanings. A text of up to kLargestEdited bytes is edited in Text1; a larger one, or one that an
/// editor would not give back unchanged, is shown there to be read. It deletes itself when it is
/// closed.
class frmNotePad : public QMainWindow, public Text_Document {
 public:
  static constexpr std::uint64_t kLargestEdited = 4U << 20;
  static constexpr std::uint64_t kLargestShown = 2000U << 20;

  /// An empty text without a file, open among Documents() from here on.
  explicit frmNotePad(ProjectRecord& record);
  ~frmNotePad() override;

  /// Takes the file's text, and keeps the caret's place when it is read again. Loading is no
  /// change. False when it can't be read; then everything is as it was.
  bool Load(const std::string& path);
  /// Asks before typed text is lost.
  bool Read_Again();

  int index() const { return index_; }
  /// Shows the menus of the main window that are for texts in this one too.
  void Share_Menus(const QMenu& font, const QMenu& window);
  void Set_Font(const QString& family);
  /// Asks first when it takes many pages, and can be called off while it is printed. False when the
  /// printer can't be written to.
  bool Print(QPrinter& printer);
  /// The whole text as it stands, in UTF-8; lines end as in the file, or with "\n" once edited.
  std::string Text();
  /// Whether it is still being read.
  bool Is_Reading() const { return slices_ != nullptr; }

  std::string Caption() const override;
  std::string File() const override { return file_; }
  void Come_To_Front() override;
  bool Changed_On_Disk() const override;
  std::optional<std::string> Bytes() override;
  void Saved_In(const std::string& file) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Build_File_Menu();
  void Build_Edit_Menu();
  QAction* Add(QMenu* menu, const char* caption, const char* key, const char* name,
               std::function<void()> action);
  void Build_Body();
  void Build_Status();
  int First_Width() const;
  void Make_Edited(const Text_Content& content);
  bool Make_Shown(std::unique_ptr<File_Slices> slices);
  bool Take_Slice();
  void Read_Slice();
  void Read_To_End();
  void Ready();
  void Show_File(const std::string& file);
  void Show_Place();
  void Show_Kind();
  bool Find(const QString& text, bool backward);
  bool Is_Edited() const { return body_->currentWidget() == edit_; }
  QString Edited_Text() const;

  ProjectRecord& record_;
  QStackedWidget* body_;
  QPlainTextEdit* edit_;
  Large_Text_View* view_;
  Find_Bar* find_bar_ = nullptr;
  QLabel *place_ = nullptr, *kind_ = nullptr, *state_ = nullptr;
  std::string file_;
  Text_Content content_;                 // of Text1 as its file has it
  Text_Content saving_;                  // what its file has once the save is over
  std::unique_ptr<File_Slices> slices_;  // while it is being read
  std::optional<File_Trace> trace_;      // of the file as it was read or saved
  const char* why_read_only_ = "";
  bool whole_ = true;  // all of the file is here, or will be
  bool loading_ = false, closing_ = false;
  int index_ = 0;
};

}  // namespace barvon
