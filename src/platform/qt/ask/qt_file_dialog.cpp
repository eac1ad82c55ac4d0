#include "platform/qt/ask/qt_file_dialog.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QTreeView>

#include "platform/files/app_folder.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
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

/// The existing path that the given one stands for, in whatever case; empty when there is none.
QString Existing_Path(QString path) {
  if (path.size() > 1 && path.endsWith(QLatin1Char('/'))) path.chop(1);
  return QString::fromStdString(Find_Path(path.toStdString()).value_or(std::string()));
}

QString Plain(const QString& path) {
  return QString::fromStdString(Without_Dots(path.toStdString()));
}

/// The toolkit's own look into the files for their kinds, which can take long and, at what the
/// system only offers as a file, never ends.
class Plain_Icons : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override { return file.isDir() ? folder_ : file_; }
  /// Never empty: the toolkit takes a file without a type for one that is not known yet.
  QString type(const QFileInfo& file) const override {
    return file.isDir() ? QStringLiteral("Folder") : QStringLiteral("File");
  }

 private:
  // Made here: they are asked for from another thread.
  QIcon folder_ = QFileIconProvider::icon(Folder), file_ = QFileIconProvider::icon(File);
};

constexpr QSize kSize(680, 440);
constexpr QSize kFrame(16, 48);  // what the desktop puts around a window, at most

/// The toolkit reads several names in quotation marks out of the field, so that a name which holds
/// some would be another one, and it reads variables and users' names. Here what stands in the
/// field counts letter for letter, and it is read in one place (Path).
class File_Dialog : public QFileDialog {
 public:
  File_Dialog(const File_Request& request, AcceptMode mode)
      : QFileDialog(Window_In_Front()), complete_(request.complete), ending_(request.ending) {
    // The toolkit's own dialog: the desktop's would match "*.DUI" by case.
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite);
    if (!left_as_.isEmpty()) restoreState(left_as_);
    // The list's thread asks it until the toolkit's part of the dialog is gone.
    static auto* const icons = new Plain_Icons;
    setIconProvider(icons);
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
    Read_The_Name();
    Offer(QString::fromStdString(request.name));
    Make_Room();
    if (mode == AcceptSave && request.filters.size() > 1) {
      for (const File_Filter& filter : request.filters) {
        suffixes_ << QString::fromStdString(filter.pattern).remove(QLatin1Char('*'));
      }
      connect(this, &QFileDialog::filterSelected, this, &File_Dialog::Follow_Filter);
    }
  }

  ~File_Dialog() override {
    left_as_ = saveState();
    left_size_ = size();
  }

  static void Begin_In(const QString& folder) { last_folder_ = folder; }

  std::optional<std::string> Ask() {
    if (exec() != Accepted) return std::nullopt;
    last_folder_ = directory().absolutePath();
    return chosen_.toStdString();
  }

  void accept() override {
    const QString folder = Selected_Folder();
    const QString path = folder.isEmpty() ? Path() : folder;
    if (path.isEmpty()) return;
    const QString existing = Existing_Path(path);
    if (!existing.isEmpty() && QFileInfo(existing).isDir()) {
      Enter(existing);
    } else if (path.endsWith(QLatin1Char('/'))) {
      Tell_No_Folder(path);
    } else if (acceptMode() == AcceptSave) {
      Save_Under(path);
    } else if (existing.isEmpty()) {
      Tell(QFileInfo(path).fileName() +
           QStringLiteral("\nFile not found.\nPlease verify the correct file name was given."));
    } else {
      Choose(existing);
    }
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == button_ && event->type() == QEvent::EnabledChange) Enable_Button();
    if (watched != button_ && event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      const bool is_return = key == Qt::Key_Return || key == Qt::Key_Enter;
      if (is_return && !Select_Current_Row(*static_cast<QAbstractItemView*>(watched))) return true;
    }
    return QFileDialog::eventFilter(watched, event);
  }

 private:
  /// Puts the reading here in the place of the toolkit's, which follows the field as it changes.
  void Read_The_Name() {
    name_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    files_ = findChild<QListView*>(QStringLiteral("listView"));
    button_ =
        findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))
            ->button(acceptMode() == AcceptSave ? QDialogButtonBox::Save : QDialogButtonBox::Open);
    disconnect(name_, &QLineEdit::textChanged, this, nullptr);
    connect(name_, &QLineEdit::textChanged, this, &File_Dialog::Follow_Name);
    // The toolkit greys the button for what it can't make out, on several occasions.
    button_->installEventFilter(this);
    for (auto* rows : {"listView", "treeView"}) {
      findChild<QAbstractItemView*>(QLatin1String(rows))->installEventFilter(this);
    }
  }

  /// Return in a list is for the row that the frame is on, also where typing has taken its mark
  /// away. Where there is none it presses the button, and false says so.
  bool Select_Current_Row(QAbstractItemView& rows) {
    const QModelIndex current = rows.currentIndex();
    if (!current.isValid() || current.parent() != rows.rootIndex()) {
      button_->click();
      return false;
    }
    QItemSelectionModel* selection = rows.selectionModel();
    if (!selection->isRowSelected(current.row(), current.parent())) {
      selection->select(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    return true;
  }

  /// The path that the field stands for; empty when that is empty. "~" is the home folder where no
  /// file is called so.
  QString Path() const {
    const QString name = name_->text();
    if (name.isEmpty()) return {};
    if (name.startsWith(QLatin1Char('/'))) return Plain(name);
    const QString here = directory().absolutePath();
    const QString path = here + (here.endsWith(QLatin1Char('/')) ? "" : "/") + name;
    const bool is_home = name == QLatin1Char('~') || name.startsWith(QLatin1String("~/"));
    return Plain(is_home && !QFileInfo::exists(path) ? QDir::homePath() + name.mid(1) : path);
  }

  /// The folder that is chosen in the list; choosing one leaves the field as it is.
  QString Selected_Folder() const {
    const QModelIndexList rows = files_->selectionModel()->selectedRows();
    if (rows.size() != 1) return {};
    const QString path = rows.constFirst().data(QFileSystemModel::FilePathRole).toString();
    return QFileInfo(path).isDir() ? path : QString();
  }

  /// Shows in the list what the field names.
  void Follow_Name() {
    const auto* model = qobject_cast<QFileSystemModel*>(files_->model());
    const QModelIndex named = model->index(Path());
    QItemSelectionModel* selection = files_->selectionModel();
    if (!named.isValid() || named.parent() != files_->rootIndex()) {
      selection->clearSelection();
    } else if (!selection->isRowSelected(named.row(), named.parent()) ||
               selection->selectedRows().size() != 1) {
      selection->select(named, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    Enable_Button();
  }

  void Enable_Button() {
    button_->setEnabled(!name_->text().isEmpty() || !Selected_Folder().isEmpty());
  }

  void Enter(const QString& folder) {
    const bool was_typed = folder == Existing_Path(Path());
    setDirectory(folder);
    if (!was_typed) return;
    name_->clear();
    name_->completer()->popup()->hide();
  }

  void Save_Under(const QString& typed) {
    const std::string named = With_Ending(typed).toStdString();
    const std::string folder = Folder_Of(complete_ ? complete_(named) : named);
    const QString existing = Existing_Path(QString::fromStdString(folder));
    if (existing.isEmpty() || !QFileInfo(existing).isDir()) {
      Tell_No_Folder(QString::fromStdString(folder));
      return;
    }
    const QString path = QString::fromStdString(Join_Path(existing.toStdString(), Name_Of(named)));
    if (May_Be_Written(path)) Choose(path);
  }

  void Choose(const QString& path) {
    chosen_ = path;
    done(Accepted);
  }

  void Tell_No_Folder(const QString& folder) {
    Tell(folder + QStringLiteral("\nDirectory not found.\nPlease verify the correct directory name "
                                 "was given."));
  }

  void Tell(const QString& text) {
    QMessageBox box(this);
    box.setWindowTitle(windowTitle());
    box.setTextFormat(Qt::PlainText);
    box.setIcon(QMessageBox::Warning);
    Name_Picture(box);
    box.setText(text);
    box.exec();
  }

  /// Names, sizes and dates are shown whole; what kind of file it is the filter says already.
  void Make_Room() {
    constexpr int kType = 2;
    resize(left_size_.boundedTo(screen()->availableSize() - kFrame));
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
    if (name_->text().isEmpty()) return;
    QString name = name_->text(), wanted;
    for (const QString& suffix : suffixes_) {
      if (filter.contains(suffix)) wanted = suffix;
      if (name.endsWith(suffix, Qt::CaseInsensitive)) name.chop(suffix.size());
    }
    name_->setText(name + wanted);
  }

  void Offer(const QString& name) {
    if (!last_folder_.isEmpty() && QFileInfo(last_folder_).isDir()) {
      setDirectory(last_folder_);
    } else if (Application_Folder() != Delivered_Folder()) {
      // The current folder is hidden among the user's files then: nobody looks for projects there.
      setDirectory(Documents_Folder());
    }
    if (name.isEmpty()) return;
    const QFileInfo offered(name);
    if (offered.isDir()) {
      setDirectory(name);
      return;
    }
    if (offered.isAbsolute()) setDirectory(offered.absolutePath());
    name_->setText(offered.fileName());
  }

  bool May_Be_Written(const QString& path) {
    const QString written =
        complete_ ? QString::fromStdString(complete_(path.toStdString())) : path;
    const QString existing = Existing_File(written);
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

  /// A path to save under, with the ending that it gets.
  QString With_Ending(const QString& path) const {
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
  QString chosen_;
  QLineEdit* name_ = nullptr;
  QListView* files_ = nullptr;
  QPushButton* button_ = nullptr;
  inline static QString last_folder_;
  // How the dialogs look, until the program ends: no file keeps it.
  inline static QByteArray left_as_;
  inline static QSize left_size_ = kSize;
};

}  // namespace

QString Documents_Folder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

void Begin_Dialogs_In(const std::string& folder) {
  File_Dialog::Begin_In(QString::fromStdString(folder));
}

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
