#include "platform/qt/help/help_search.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyledItemDelegate>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace barvon {
namespace {

constexpr int kPage = Qt::UserRole;

/// Gives each item the height of its lines at the width that it is drawn in; the list by itself
/// lays out and draws with two different ones.
class Wrapped_Lines : public QStyledItemDelegate {
 public:
  explicit Wrapped_Lines(QListWidget& list) : QStyledItemDelegate(&list), list_(list) {}
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem within = option;
    within.rect.setWidth(list_.viewport()->width() - 2 * list_.spacing());
    return QStyledItemDelegate::sizeHint(within, index);
  }

 private:
  const QListWidget& list_;
};

/// The words of a text. Signs would be taken for the search language's own.
QStringList Words_Of(const QString& text) {
  static const QRegularExpression signs(QStringLiteral("[^\\w]+"),
                                        QRegularExpression::UseUnicodePropertiesOption);
  return text.split(signs, Qt::SkipEmptyParts);
}

}  // namespace

Help_Search::Help_Search(QHelpSearchEngine& engine, QWidget* parent)
    : QWidget(parent),
      engine_(engine),
      words_(new QLineEdit(this)),
      outcome_(new QLabel(this)),
      results_(new QListWidget(this)) {
  auto* label = new QLabel(QStringLiteral("&Words in the text:"), this);
  label->setBuddy(words_);
  words_->setObjectName(QStringLiteral("HelpWords"));
  words_->setClearButtonEnabled(true);
  auto* button = new QPushButton(QStringLiteral("Sea&rch"), this);
  button->setObjectName(QStringLiteral("HelpSearch"));
  outcome_->setObjectName(QStringLiteral("HelpOutcome"));
  outcome_->setWordWrap(true);
  results_->setObjectName(QStringLiteral("HelpResults"));
  results_->setAccessibleName(QStringLiteral("Pages that hold the words"));
  results_->setWordWrap(true);
  results_->setAlternatingRowColors(true);
  results_->setSpacing(2);
  results_->setItemDelegate(new Wrapped_Lines(*results_));
  // The heights go by the width: it must not change once they are laid out.
  results_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  results_->setResizeMode(QListView::Adjust);
  results_->setTextElideMode(Qt::ElideNone);

  auto* line = new QHBoxLayout;
  line->addWidget(words_, 1);
  line->addWidget(button);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(6, 6, 6, 6);
  column->addWidget(label);
  column->addLayout(line);
  column->addWidget(outcome_);
  column->addWidget(results_, 1);

  connect(words_, &QLineEdit::returnPressed, this, &Help_Search::Search);
  connect(button, &QPushButton::clicked, this, &Help_Search::Search);
  connect(&engine_, &QHelpSearchEngine::indexingFinished, this, [this] {
    ready_ = true;
    if (wanted_) Search();
  });
  connect(&engine_, &QHelpSearchEngine::searchingFinished, this, &Help_Search::Show_Results);
  const auto open = [this](const QListWidgetItem* item) {
    emit Found(item->data(kPage).toUrl(), first_word_);
  };
  connect(results_, &QListWidget::itemClicked, this, open);
  connect(results_, &QListWidget::itemActivated, this, open);
}

void Help_Search::Start() {
  words_->setFocus();
  words_->selectAll();
}

void Help_Search::Search() {
  const QStringList words = Words_Of(words_->text());
  results_->clear();
  wanted_ = !words.isEmpty() && !ready_;
  if (words.isEmpty()) {
    outcome_->setText(QStringLiteral("Type one or more words to look for."));
    return;
  }
  outcome_->setText(QStringLiteral("Searching..."));
  if (wanted_) return;
  first_word_ = words.constFirst();
  // Each word also stands for the words that begin with it.
  engine_.search(words.join(QStringLiteral("* ")) + QLatin1Char('*'));
}

void Help_Search::Show_Results() {
  results_->clear();
  const int count = engine_.searchResultCount();
  for (const QHelpSearchResult& result : engine_.searchResults(0, count)) {
    const QString around = QTextDocumentFragment::fromHtml(result.snippet()).toPlainText();
    auto* item = new QListWidgetItem(result.title() + QLatin1Char('\n') + around.simplified());
    item->setData(kPage, result.url());
    results_->addItem(item);
  }
  outcome_->setText(count == 0   ? QStringLiteral("No page holds these words.")
                    : count == 1 ? QStringLiteral("1 page found.")
                                 : QStringLiteral("%1 pages found.").arg(count));
  if (count > 0) results_->setCurrentRow(0);
}

}  // namespace barvon
