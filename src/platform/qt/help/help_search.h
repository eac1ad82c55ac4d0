#pragma once

#include <QHelpSearchEngine>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QUrl>
#include <QWidget>

namespace barvon {

/// Looks for words in the text of all pages. A search asked for while the pages are still being
/// read is made when they are.
class Help_Search : public QWidget {
  Q_OBJECT

 public:
  Help_Search(QHelpSearchEngine& engine, QWidget* parent);

  void Start();

 signals:
  void Found(const QUrl& page, const QString& word);

 private:
  void Search();
  void Show_Results();

  QHelpSearchEngine& engine_;
  QLineEdit* words_;
  QLabel* outcome_;
  QListWidget* results_;
  QString first_word_;
  bool ready_ = false;
  bool wanted_ = false;
};

}  // namespace barvon
