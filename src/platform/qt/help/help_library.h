#pragma once

#include <QByteArray>
#include <QHelpEngine>
#include <QObject>
#include <QTemporaryDir>
#include <QUrl>
#include <memory>

namespace barvon {

/// A help file opened for reading. What its engine must write down goes into a folder of its own,
/// removed with the library; the help file itself is never written.
class Help_Library : public QObject {
 public:
  /// Nothing when the file is not a help file or can't be read.
  static std::unique_ptr<Help_Library> Open(const QString& path);

  const QString& path() const { return path_; }
  QHelpEngine& engine() { return *engine_; }

  /// The page of a topic; the contents page for 0 and for a topic that has none.
  QUrl Page_Of(int topic) const;
  QUrl Contents_Page() const { return contents_; }
  /// What the file holds under the address; empty when it holds nothing there.
  QByteArray Data(const QUrl& url) const;

 private:
  explicit Help_Library(const QString& path);
  bool Read();

  QString path_;
  QTemporaryDir folder_;
  std::unique_ptr<QHelpEngine> engine_;  // goes before the folder that it writes to
  QUrl contents_;
};

}  // namespace barvon
