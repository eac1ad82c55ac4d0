#include "platform/qt/help/help_window.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/qt/tool_bar_keys.h"

namespace barvon {
namespace {

/// Where the window opens, as far as the text is readable at that size and the screen holds it.
constexpr QRect kPlace(256, 256, 512, 512);
// In characters of the desktop's font.
constexpr int kNavigationWidth = 38;
constexpr int kPageWidth = 68;
constexpr int kLeastWidth = 40;
constexpr int kLeastLines = 14;
constexpr int kLinesOfButtons = 4;  // at the foot of a window

}  // namespace

Help_Window::Help_Window(std::unique_ptr<Help_Library> library)
    : library_(std::move(library)),
      halves_(new QSplitter(this)),
      navigation_(new Help_Navigation(*library_, this)),
      page_(new Help_Page(*library_, this)),
      find_bar_(new Find_Bar({QStringLiteral("HelpFind"), QStringLiteral("Find in &page:"),
                              QStringLiteral("Not on this page."),
                              [this](const QString& text, bool backward) {
                                return Find_Around(*page_, text, backward);
                              }},
                             this)) {
  find_bar_->hide();
  setObjectName(QStringLiteral("Help"));
  setWindowTitle(QStringLiteral("BARVON Help"));
  // The program ends with its main window, whether help is open or not.
  setAttribute(Qt::WA_QuitOnClose, false);

  auto* right = new QWidget(this);
  auto* right_column = new QVBoxLayout(right);
  right_column->setContentsMargins(0, 0, 0, 0);
  right_column->setSpacing(0);
  right_column->addWidget(page_, 1);
  right_column->addWidget(find_bar_);
  halves_->setObjectName(QStringLiteral("HelpHalves"));
  halves_->addWidget(navigation_);
  halves_->addWidget(right);
  halves_->setStretchFactor(1, 1);
  halves_->setCollapsible(1, false);
  auto* tools = new QToolBar(this);
  tools->setObjectName(QStringLiteral("HelpTools"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(tools);
  column->addWidget(halves_, 1);

  Build_Actions();
  Let_Tab_Reach(*tools);
  Place();
  const int navigation = fontMetrics().averageCharWidth() * kNavigationWidth;
  halves_->setSizes({navigation, width() - navigation});

  connect(navigation_, &Help_Navigation::Chosen, page_, [this](const QUrl& page) {
    if (!page.isEmpty()) page_->setSource(page);
  });
  connect(navigation_, &Help_Navigation::Found, page_,
          [this](const QUrl& page, const QString& word) {
            page_->setSource(page);
            page_->moveCursor(QTextCursor::Start);
            Find_Around(*page_, word);
          });
  connect(page_, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) {
    navigation_->Follow(page);
    const QString title = page_->documentTitle();
    setWindowTitle(title.isEmpty() || page == library_->Contents_Page()
                       ? QStringLiteral("BARVON Help")
                       : title + QStringLiteral(" - BARVON Help"));
  });
}

Help_Window::~Help_Window() {
  // The widgets read from the library, so they go first.
  delete navigation_;
  delete page_;
}

QAction* Help_Window::Add(const char* name, const QString& text, const QList<QKeySequence>& keys) {
  auto* action = new QAction(text, this);
  action->setObjectName(QLatin1String(name));
  action->setShortcuts(keys);
  QString tip = QString(text).remove(QLatin1Char('&'));
  if (!keys.isEmpty()) {
    tip += QStringLiteral(" (%1)").arg(keys.constFirst().toString(QKeySequence::NativeText));
  }
  action->setToolTip(tip);
  addAction(action);
  findChild<QToolBar*>(QStringLiteral("HelpTools"))->addAction(action);
  return action;
}

void Help_Window::Build_Actions() {
  auto* tools = findChild<QToolBar*>(QStringLiteral("HelpTools"));
  QAction* back = Add("HelpBack", QStringLiteral("Back"), {QKeySequence(Qt::ALT | Qt::Key_Left)});
  QAction* forward =
      Add("HelpForward", QStringLiteral("Forward"), {QKeySequence(Qt::ALT | Qt::Key_Right)});
  QAction* home = Add("HelpHome", QStringLiteral("Home"), {QKeySequence(Qt::ALT | Qt::Key_Home)});
  tools->addSeparator();
  QAction* larger =
      Add("HelpLarger", QStringLiteral("Larger"),
          {QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  QAction* smaller =
      Add("HelpSmaller", QStringLiteral("Smaller"), {QKeySequence(QKeySequence::ZoomOut)});
  QAction* normal =
      Add("HelpNormal", QStringLiteral("Normal"), {QKeySequence(Qt::CTRL | Qt::Key_0)});
  tools->addSeparator();
  QAction* find = Add("HelpFind", QStringLiteral("Find"), {QKeySequence(QKeySequence::Find)});
  QAction* print = Add("HelpPrint", QStringLiteral("Print"), {QKeySequence(QKeySequence::Print)});
  back->setEnabled(false);
  forward->setEnabled(false);

  connect(back, &QAction::triggered, page_, &QTextBrowser::backward);
  connect(forward, &QAction::triggered, page_, &QTextBrowser::forward);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  connect(home, &QAction::triggered, this, &Help_Window::Show_Contents);
  connect(larger, &QAction::triggered, page_, [this] { page_->Zoom(1); });
  connect(smaller, &QAction::triggered, page_, [this] { page_->Zoom(-1); });
  connect(normal, &QAction::triggered, page_, [this] { page_->Zoom_Back(); });
  connect(find, &QAction::triggered, find_bar_, &Find_Bar::Open);
  connect(print, &QAction::triggered, this, &Help_Window::Print);

  auto* next = new QAction(this);
  next->setShortcut(QKeySequence::FindNext);
  auto* previous = new QAction(this);
  previous->setShortcut(QKeySequence::FindPrevious);
  auto* leave = new QAction(this);
  leave->setShortcut(Qt::Key_Escape);
  addActions({next, previous, leave});
  connect(next, &QAction::triggered, find_bar_, [this] { find_bar_->Find(false); });
  connect(previous, &QAction::triggered, find_bar_, [this] { find_bar_->Find(true); });
  connect(leave, &QAction::triggered, this, [this] {
    if (find_bar_->isVisible()) {
      find_bar_->hide();
      page_->setFocus();
    } else {
      close();
    }
  });
}

void Help_Window::Place() {
  const QFontMetrics font = fontMetrics();
  const int character = font.averageCharWidth();
  setMinimumSize(character * kLeastWidth, font.lineSpacing() * kLeastLines);
  QRect place = kPlace;
  place.setWidth(std::max(place.width(), character * (kNavigationWidth + kPageWidth)));
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen != nullptr) {
    // The desktop draws the title above the place.
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QRect room = screen->availableGeometry().adjusted(0, title, 0, 0);
    place.setSize(place.size().boundedTo(room.size()));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
  }
  setGeometry(place);
}

void Help_Window::Show_Topic(int topic) { page_->setSource(library_->Page_Of(topic)); }

void Help_Window::Show_Contents() { page_->setSource(library_->Contents_Page()); }

void Help_Window::Come_Forward() {
  if (page_->source().isEmpty()) Show_Contents();
  Follow_Blocking_Window();
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
}

void Help_Window::Come_Beside() {
  if (isVisible() && !isMinimized()) return;
  Follow_Blocking_Window();
  if (const QWindow* blocking = QGuiApplication::modalWindow()) {
    Place_Beside(blocking->frameGeometry());
  }
  setAttribute(Qt::WA_ShowWithoutActivating);
  showNormal();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void Help_Window::Place_Beside(const QRect& window) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QRect room = screen->availableGeometry().adjusted(0, title, 0, 0);
  QRect place = geometry();
  if (room.right() - window.right() >= minimumWidth()) {
    place.setLeft(std::max(window.right(), room.right() - place.width()) + 1);
    place.setRight(room.right());
  } else {
    place.moveTop(room.top());
    place.moveRight(room.right());
    const int buttons = fontMetrics().lineSpacing() * kLinesOfButtons;
    place.setBottom(std::max(place.top() + minimumHeight(), window.bottom() - buttons));
  }
  setGeometry(place);
  // A page of a few letters a line is none: the list comes back with the handle at its edge.
  const int character = fontMetrics().averageCharWidth();
  if (place.width() < character * (kNavigationWidth + kLeastWidth)) {
    halves_->setSizes({0, place.width()});
  }
}

void Help_Window::Print() {
  QPrinter printer;
  printer.setDocName(page_->documentTitle());
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) page_->print(&printer);
}

bool Help_Window::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) Follow_Blocking_Window();
  return QWidget::event(event);
}

/// A blocking window leaves those alone that are on it, so help moves onto each that comes up,
/// and back to the one below when it goes.
void Help_Window::Follow_Blocking_Window() {
  winId();  // gives it the native window that is moved
  QWindow* own = windowHandle();
  QWindow* blocking = QGuiApplication::modalWindow();
  if (own == nullptr || blocking == own || own->transientParent() == blocking) return;
  // A dialog of its own already is on it.
  if (blocking != nullptr && own->isAncestorOf(blocking, QWindow::IncludeTransients)) return;
  own->setTransientParent(blocking);
  if (blocking == nullptr) return;
  connect(blocking, &QWindow::visibleChanged, this, &Help_Window::Follow_Blocking_Window,
          Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
  connect(blocking, &QObject::destroyed, this, &Help_Window::Follow_Blocking_Window,
          Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
}

}  // namespace barvon
