#include "platform/qt/help/help_page.h"

#include <algorithm>

#include "platform/qt/help/help_library.h"

namespace barvon {
namespace {

constexpr int kLeastZoom = -3;
constexpr int kMostZoom = 16;

}  // namespace

Help_Page::Help_Page(Help_Library& library, QWidget* parent)
    : QTextBrowser(parent), library_(library) {
  setObjectName(QStringLiteral("HelpPage"));
  setAccessibleName(QStringLiteral("Help page"));
  setOpenExternalLinks(false);
  // Links and text are reached by keys as well.
  setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  // Words stay whole; a page that is still too wide is moved sideways.
  setWordWrapMode(QTextOption::WordWrap);
  // A bar that comes and goes takes its width from a page that is already laid out, which then
  // stays too wide.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  document()->setDocumentMargin(12);
}

QVariant Help_Page::loadResource(int type, const QUrl& name) {
  const QUrl url = name.isRelative() ? source().resolved(name) : name;
  const QByteArray data = library_.Data(url);
  if (!data.isEmpty() || type != QTextDocument::HtmlResource) return data;
  return QStringLiteral("<h1>Page not found</h1><p>The help file holds no page %1.</p>")
      .arg(url.fileName().toHtmlEscaped());
}

void Help_Page::Zoom(int steps) {
  const int wanted = std::clamp(zoom_ + steps, kLeastZoom, kMostZoom);
  zoomIn(wanted - zoom_);
  zoom_ = wanted;
}

void Help_Page::Zoom_Back() { Zoom(-zoom_); }

}  // namespace barvon
