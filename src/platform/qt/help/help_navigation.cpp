#include "platform/qt/help/help_navigation.h"

#include <QHelpLink>
#include <QInputDialog>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/qt/help/help_library.h"

namespace barvon {

Help_Navigation::Help_Navigation(Help_Library& library, QWidget* parent)
    : QTabWidget(parent), library_(library) {
  setObjectName(QStringLiteral("HelpTabs"));
  setDocumentMode(true);
  addTab(Contents_Tab(), QStringLiteral("C&ontents"));
  addTab(Index_Tab(), QStringLiteral("&Index"));
  search_ = new Help_Search(*library_.engine().searchEngine(), this);
  addTab(search_, QStringLiteral("&Search"));
  connect(search_, &Help_Search::Found, this, &Help_Navigation::Found);
}

QWidget* Help_Navigation::Contents_Tab() {
  contents_ = library_.engine().contentWidget();
  contents_->setObjectName(QStringLiteral("HelpContents"));
  contents_->setAccessibleName(QStringLiteral("Contents of the help"));
  contents_->setHeaderHidden(true);
  connect(contents_, &QHelpContentWidget::linkActivated, this, &Help_Navigation::Chosen);
  connect(contents_, &QHelpContentWidget::clicked, this, [this](const QModelIndex& at) {
    const auto* item = library_.engine().contentModel()->contentItemAt(at);
    if (item != nullptr) emit Chosen(item->url());
  });
  connect(library_.engine().contentModel(), &QHelpContentModel::contentsCreated, this, [this] {
    contents_->expandToDepth(0);
    Follow(followed_);
  });
  return contents_;
}

QWidget* Help_Navigation::Index_Tab() {
  auto* tab = new QWidget(this);
  auto* label = new QLabel(QStringLiteral("&Look for:"), tab);
  key_ = new QLineEdit(tab);
  key_->setObjectName(QStringLiteral("HelpKey"));
  key_->setClearButtonEnabled(true);
  label->setBuddy(key_);
  index_ = library_.engine().indexWidget();
  index_->setObjectName(QStringLiteral("HelpIndex"));
  index_->setAccessibleName(QStringLiteral("Index of the help"));
  index_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  index_->setTextElideMode(Qt::ElideRight);
  index_->setMouseTracking(true);
  connect(index_, &QHelpIndexWidget::entered, this, [this](const QModelIndex& keyword) {
    index_->setToolTip(keyword.data().toString().toHtmlEscaped());
  });

  auto* column = new QVBoxLayout(tab);
  column->setContentsMargins(6, 6, 6, 6);
  column->addWidget(label);
  column->addWidget(key_);
  column->addWidget(index_, 1);

  connect(key_, &QLineEdit::textChanged, this, [this] { Filter_Index(); });
  connect(key_, &QLineEdit::returnPressed, index_, &QHelpIndexWidget::activateCurrentItem);
  connect(index_, &QHelpIndexWidget::clicked, index_, &QHelpIndexWidget::activateCurrentItem);
  connect(index_, &QHelpIndexWidget::documentActivated, this,
          [this](const QHelpLink& page) { emit Chosen(page.url); });
  connect(index_, &QHelpIndexWidget::documentsActivated, this, &Help_Navigation::Choose);
  connect(library_.engine().indexModel(), &QHelpIndexModel::indexCreated, this,
          [this] { Filter_Index(); });
  return tab;
}

void Help_Navigation::Filter_Index() { index_->filterIndices(key_->text()); }

void Help_Navigation::Choose(const QList<QHelpLink>& pages, const QString& keyword) {
  QStringList titles;
  for (const QHelpLink& page : pages) titles += page.title;
  bool chosen = false;
  const QString title = QInputDialog::getItem(this, QStringLiteral("BARVON Help"),
                                              QStringLiteral("&Pages on \"%1\":").arg(keyword),
                                              titles, 0, false, &chosen);
  const auto at = titles.indexOf(title);
  if (chosen && at >= 0) emit Chosen(pages.at(at).url);
}

void Help_Navigation::Open_Contents() {
  setCurrentIndex(kContents);
  contents_->setFocus();
}

void Help_Navigation::Open_Index(const QString& key) {
  setCurrentIndex(kIndex);
  key_->setText(key);
  key_->setFocus();
}

void Help_Navigation::Open_Search() {
  setCurrentIndex(kSearch);
  search_->Start();
}

void Help_Navigation::Follow(const QUrl& page) {
  followed_ = page;
  QModelIndex at = contents_->indexOf(page);
  // A place within a page need not be in the contents; its page does.
  if (!at.isValid()) at = contents_->indexOf(page.adjusted(QUrl::RemoveFragment));
  if (at.isValid()) contents_->setCurrentIndex(at);
}

}  // namespace barvon
