#include "workspace/main_toolbar.h"

#include <QIcon>
#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "workspace/main_menus.h"
#include "workspace/menu_items.h"

namespace barvon {
namespace {

struct Tool {
  int index;
  const char* tip;
  const char* picture;  // our own; none: a separator
  const char* themed;   // the desktop's
};

/// Indices count the separators.
constexpr Tool kTools[] = {
    {kToolNew, "Create New Project", "new", "document-new"},
    {kToolOpen, "Open Existing Project", "open", "document-open"},
    {kToolSave, "Save Current Project", "save", "document-save"},
    {4, "", nullptr, nullptr},
    {kToolPrint, "Print Results", "print", "document-print"},
    {kToolRun, "Run Simulation", "run", "media-playback-start"},
    {7, "", nullptr, nullptr},
    {kToolGraphics, "Generate Graphics", "graphics", "x-office-drawing"},
    {kToolCheck, "Check for Errors", "check", "tools-check-spelling"},
    {10, "", nullptr, nullptr},
    {kToolHelp, "BARVON Help", "help", "help-contents"},
};

constexpr int kSize = 22;

/// Whether enough of the picture stands out from the ground. A theme made for dark desktops does
/// not, nor does a picture in pale grey.
bool Can_Be_Seen(const QIcon& icon, const QColor& ground) {
  constexpr int kLeastContrast = 64;                // of 255
  constexpr int kLeastPoints = kSize * kSize / 12;  // about a thin outline
  const QImage picture = icon.pixmap(QSize(kSize, kSize), 1.0).toImage();
  int points = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor point = picture.pixelColor(x, y);
      const bool stands_out = std::abs(qGray(point.rgb()) - qGray(ground.rgb())) >= kLeastContrast;
      if (point.alpha() > 128 && stands_out) ++points;
    }
  }
  return points >= kLeastPoints;
}

bool Theme_Serves(const QColor& ground) {
  return std::all_of(std::begin(kTools), std::end(kTools), [&ground](const Tool& tool) {
    if (tool.themed == nullptr) return true;
    const QString name = QLatin1String(tool.themed);
    return QIcon::hasThemeIcon(name) && Can_Be_Seen(QIcon::fromTheme(name), ground);
  });
}

}  // namespace

void Build_Toolbar(Main_Controls& controls) {
  QToolBar* bar = controls.Toolbar1;
  bar->setObjectName(QStringLiteral("Toolbar1"));
  bar->setWindowTitle(QStringLiteral("Toolbar"));
  bar->setAccessibleName(QStringLiteral("Toolbar"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setIconSize(QSize(kSize, kSize));
  const bool themed = Theme_Serves(bar->palette().color(QPalette::Window));
  for (const Tool& tool : kTools) {
    const bool separator = tool.picture == nullptr;
    QAction* action = separator ? bar->addSeparator() : bar->addAction(QLatin1String(tool.tip));
    if (!separator) {
      action->setIcon(
          themed ? QIcon::fromTheme(QLatin1String(tool.themed))
                 : QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(tool.picture))));
    }
    Name_Action(controls, action, "Toolbar1", tool.index);
  }
  controls.window->addToolBar(bar);
  controls.window->setContextMenuPolicy(Qt::NoContextMenu);
}

}  // namespace barvon
