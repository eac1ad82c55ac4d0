#include "graphs/notice_page.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>
#include <system_error>

#include "platform/ask/message_box.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

constexpr int kMargin = 24;

}  // namespace

Notice_Page::Notice_Page(QWidget* parent)
    : QWidget(parent),
      words_(new QLabel(this)),
      open_(new QPushButton(QStringLiteral("&Open..."), this)),
      listing_(new QPushButton(QStringLiteral("Show &Listing"), this)),
      view_(new Large_Text_View(this)),
      find_bar_(new Find_Bar(
          {QStringLiteral("Find"), QStringLiteral("F&ind"), QStringLiteral("Not in this text."),
           [this](const QString& text, bool backward) { return view_->Find(text, backward); },
           QStringLiteral("&Previous")},
          this)) {
  words_->setObjectName(QStringLiteral("Notice"));
  words_->setTextFormat(Qt::PlainText);
  words_->setWordWrap(true);
  words_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  words_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  open_->setObjectName(QStringLiteral("cmdOpen"));
  listing_->setObjectName(QStringLiteral("cmdListing"));
  view_->setObjectName(QStringLiteral("Listing"));
  view_->setAccessibleName(QStringLiteral("Listing of the run"));
  view_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  view_->hide();
  find_bar_->hide();

  setFocusProxy(open_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(open_);
  buttons->addWidget(listing_);
  buttons->addStretch();
  auto* notice = new QVBoxLayout;
  notice->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  notice->setSpacing(kMargin / 2);
  notice->addWidget(words_);
  notice->addLayout(buttons);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSpacing(0);
  all->addLayout(notice);
  all->addWidget(view_, 1);
  all->addWidget(find_bar_);
  all->addStretch();

  connect(open_, &QPushButton::clicked, this, &Notice_Page::Open_Asked);
  connect(listing_, &QPushButton::clicked, this, &Notice_Page::Show_Listing);
  auto* away = new QShortcut(QKeySequence(Qt::Key_Escape), find_bar_);
  away->setContext(Qt::WidgetWithChildrenShortcut);
  connect(away, &QShortcut::activated, this, [this] {
    find_bar_->hide();
    view_->setFocus();
  });
}

void Notice_Page::Show(const Graph_Notice& notice) {
  const bool same_listing = notice.listing == notice_.listing;
  notice_ = notice;
  words_->setText(QString::fromStdString(notice.words));
  listing_->setVisible(!notice.listing.empty());
  if (same_listing) return;
  view_->hide();
  find_bar_->hide();
}

void Notice_Page::Show_Listing() {
  std::string bytes;
  if (const int error = Read_Whole_File(notice_.listing, bytes); error != 0) {
    Show_Critical("The listing " + notice_.listing +
                  " can't be read: " + std::generic_category().message(error) + ".");
    return;
  }
  Text_Rows rows(bytes.size());
  rows.Add(bytes);
  rows.Finish();
  view_->Set_Rows(std::move(rows));
  view_->show();
  view_->setFocus();
}

void Notice_Page::Copy() const {
  if (Listing_Is_Shown()) view_->Copy();
}

void Notice_Page::Open_Find() {
  if (Listing_Is_Shown()) find_bar_->Open();
}

void Notice_Page::Find(bool backward) {
  if (Listing_Is_Shown()) find_bar_->Find(backward);
}

}  // namespace barvon
