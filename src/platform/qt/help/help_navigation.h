#pragma once

#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QLineEdit>
#include <QTabWidget>

#include "platform/qt/help/help_search.h"

namespace barvon {

class Help_Library;

/// The three ways to a page: contents, index and search.
class Help_Navigation : public QTabWidget {
  Q_OBJECT

 public:
  enum Tab { kContents, kIndex, kSearch };

  Help_Navigation(Help_Library& library, QWidget* parent);

  void Open_Contents();
  /// Opens the index on the keywords that hold the key.
  void Open_Index(const QString& key);
  void Open_Search();
  /// Marks the page in the contents.
  void Follow(const QUrl& page);

 signals:
  void Chosen(const QUrl& page);
  void Found(const QUrl& page, const QString& word);

 private:
  QWidget* Contents_Tab();
  QWidget* Index_Tab();
  void Filter_Index();
  void Choose(const QList<QHelpLink>& pages, const QString& keyword);

  Help_Library& library_;
  QUrl followed_;
  QHelpContentWidget* contents_ = nullptr;
  QLineEdit* key_ = nullptr;
  QHelpIndexWidget* index_ = nullptr;
  Help_Search* search_ = nullptr;
};

}  // namespace barvon
