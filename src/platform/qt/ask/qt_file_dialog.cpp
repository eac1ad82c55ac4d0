#include "platform/qt/ask/qt_file_dialog.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>
#include <QTreeView>

#include "platform/files/app_folder.h"
#include "platform/qt/ask/qt_message_box.h"
#include "platform/qt/ask/window_in_front.h"
#include "platform/qt/session_printer.h"

namespace barvon {
namespace {

/// The file of that name in its folder, in whatever case; empty when there is none.
QString Existing_File(const QString& path) {
  const QFileInfo named(path);
  if (named.exists()) return named.fileName();
  const QDir::Filters files = QDir::Files | QDir::Hidden | QDir::System;
  for (const QString& name : named.dir().entryList(files)) {
    if (name.compare(named.fileName(), Qt::CaseInsensitive) == 0) return name;
  }
  return {};
}

constexpr QSize kSize(680, 440);

class File_Dialog : public QFileDialog {
 public:
  File_Dialog(const File_Request& request, AcceptMode mode)
      : QFileDialog(Window_In_Front()), complete_(request.complete), ending_(request.ending) {
    // The toolkit's own dialog: the desktop's would match "*.DUI" by case.
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite);
    setAcceptMode(mode);
    setFileMode(mode == AcceptOpen ? ExistingFile : AnyFile);
    if (!request.title.empty()) setWindowTitle(QString::fromStdString(request.title));
    QStringList filters;
    for (const File_Filter& filter : request.filters) {
      QString name = QString::fromStdString(filter.name);
      const QString pattern = QString::fromStdString(filter.pattern);
      if (!name.contains(pattern)) name += QStringLiteral(" (%1)").arg(pattern);
      filters << name;
    }
    setNameFilters(filters);
    Offer(QString::fromStdString(request.name));
    Make_Room();
    if (mode == AcceptSave && request.filters.size() > 1) {
      for (const File_Filter& filter : request.filters) {
        suffixes_ << QString::fromStdString(filter.pattern).remove(QLatin1Char('*'));
      }
      connect(this, &QFileDialog::filterSelected, this, &File_Dialog::Follow_Filter);
    }
  }

  std::optional<std::string> Ask() {
    if (exec() != Accepted || selectedFiles().isEmpty()) return std::nullopt;
    last_folder_ = directory().absolutePath();
    return Chosen().toStdString();
  }

  void accept() override {
    if (acceptMode() == AcceptSave && !May_Be_Written()) return;
    QFileDialog::accept();
  }

 private:
  /// Names, sizes and dates are shown whole; what kind of file it is the filter says already.
  void Make_Room() {
    constexpr int kType = 2;
    resize(kSize);
    Name_Lists();
    auto* files = findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr) return;
    files->hideColumn(kType);
    files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }

  /// The toolkit's labels do not say whose they are.
  void Name_Lists() {
    for (const char* list : {"lookIn", "fileType"}) {
      auto* label = findChild<QLabel*>(QLatin1String(list) + QStringLiteral("Label"));
      auto* combo = findChild<QComboBox*>(QLatin1String(list) + QStringLiteral("Combo"));
      if (label != nullptr && combo != nullptr) label->setBuddy(combo);
    }
  }

  /// The name that is offered or typed goes with the kind of file that is chosen.
  void Follow_Filter(const QString& filter) {
    auto* edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (edit == nullptr || edit->text().isEmpty()) return;
    QString name = edit->text(), wanted;
    for (const QString& suffix : suffixes_) {
      if (filter.contains(suffix)) wanted = suffix;
      if (name.endsWith(suffix, Qt::CaseInsensitive)) name.chop(suffix.size());
    }
    edit->setText(name + wanted);
  }

  void Offer(const QString& name) {
    if (!last_folder_.isEmpty()) {
      setDirectory(last_folder_);
    } else if (Application_Folder() != Delivered_Folder()) {
      // The current folder is hidden among the user's files then: nobody looks for projects there.
      setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    }
    if (name.isEmpty() || name.contains(QLatin1Char('*'))) return;
    const QFileInfo offered(name);
    if (offered.isDir()) {
      setDirectory(name);
      return;
    }
    if (offered.isAbsolute()) setDirectory(offered.absolutePath());
    selectFile(offered.fileName());
  }

  bool May_Be_Written() {
    const QStringList files = selectedFiles();
    if (files.isEmpty() || QFileInfo(files.constFirst()).isDir()) return true;
    std::string path = Chosen().toStdString();
    if (complete_) path = complete_(path);
    const QString existing = Existing_File(QString::fromStdString(path));
    if (existing.isEmpty()) return true;
    QMessageBox box(this);
    box.setWindowTitle(windowTitle());
    box.setTextFormat(Qt::PlainText);
    box.setIcon(QMessageBox::Warning);
    Name_Picture(box);
    box.setText(QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(existing));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
  }

  /// The file that is chosen, with the ending that it gets.
  QString Chosen() const {
    QString path = selectedFiles().constFirst();
    const bool is_bare = !QFileInfo(path).fileName().contains(QLatin1Char('.'));
    if (ending_ == Ending::As_Typed || (ending_ == Ending::To_Bare_Names && !is_bare)) return path;
    QString wanted;
    for (const QString& suffix : suffixes_) {
      if (suffix.isEmpty()) continue;  // of all files
      if (path.endsWith(suffix, Qt::CaseInsensitive)) return path;
      if (selectedNameFilter().contains(suffix)) wanted = suffix;
    }
    return path + wanted;
  }

  std::function<std::string(const std::string&)> complete_;
  Ending ending_;
  QStringList suffixes_;  // of the filters, when there are several to save by
  inline static QString last_folder_;
};

}  // namespace

std::optional<std::string> Ask_Qt_Open_File(const File_Request& request) {
  return File_Dialog(request, QFileDialog::AcceptOpen).Ask();
}

std::optional<std::string> Ask_Qt_Save_File(const File_Request& request) {
  return File_Dialog(request, QFileDialog::AcceptSave).Ask();
}

void Show_Qt_Printer_Setup() {
  QPageSetupDialog dialog(&Session_Printer(), Window_In_Front());
  dialog.exec();
}

bool Ask_Qt_Printer(const std::string& title, int pages) {
  QPrinter& printer = Session_Printer();
  // A range and an order are for one print: of the next text the range would leave pages out.
  printer.setPrintRange(QPrinter::AllPages);
  printer.setFromTo(0, 0);
  printer.setPageOrder(QPrinter::FirstPageFirst);
  QPrintDialog dialog(&printer, Window_In_Front());
  dialog.setWindowTitle(QString::fromStdString(title));
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                    QAbstractPrintDialog::PrintShowPageSize |
                    QAbstractPrintDialog::PrintCollateCopies);
  if (pages > 0) dialog.setMinMax(1, pages);
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace barvon
