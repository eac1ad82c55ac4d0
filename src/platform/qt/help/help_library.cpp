#include "platform/qt/help/help_library.h"

#include <QHelpLink>
#include <QHelpSearchEngine>

namespace barvon {
namespace {

/// The keyword by which the contents page is found.
constexpr char kContentsId[] = "contents";

}  // namespace

std::unique_ptr<Help_Library> Help_Library::Open(const QString& path) {
  std::unique_ptr<Help_Library> library(new Help_Library(path));
  if (!library->Read()) return nullptr;
  return library;
}

Help_Library::Help_Library(const QString& path) : path_(path) {}

bool Help_Library::Read() {
  if (!folder_.isValid() || QHelpEngineCore::namespaceName(path_).isEmpty()) return false;
  engine_ = std::make_unique<QHelpEngine>(folder_.filePath(QStringLiteral("help.qhc")));
  engine_->setReadOnly(false);
  engine_->setUsesFilterEngine(true);
  if (!engine_->setupData() || !engine_->registerDocumentation(path_)) return false;
  const auto links = engine_->documentsForIdentifier(QLatin1String(kContentsId));
  if (links.isEmpty()) return false;
  contents_ = links.constFirst().url;
  if (Data(contents_).isEmpty()) return false;
  // Once more, now that there is something to set up: contents and index are made from it.
  if (!engine_->setupData()) return false;
  engine_->searchEngine()->reindexDocumentation();
  return true;
}

QUrl Help_Library::Page_Of(int topic) const {
  if (topic == 0) return contents_;
  const auto links = engine_->documentsForIdentifier(QString::number(topic));
  return links.isEmpty() ? contents_ : links.constFirst().url;
}

QByteArray Help_Library::Data(const QUrl& url) const { return engine_->fileData(url); }

}  // namespace barvon
