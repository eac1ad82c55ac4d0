#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "support/screen_support.h"

namespace barvon::testing {

/// A screen with a field, a table of 4 rows and 3 columns, and a button.
class SpreadsheetView : public ::testing::Test {
 protected:
  SpreadsheetView() {
    auto* layout = new QVBoxLayout(&screen);
    layout->addWidget(before = new QLineEdit);
    layout->addWidget(book = new F1Book(kBookNumbers));
    layout->addWidget(ok = new QPushButton(QStringLiteral("&OK")));
    book->setObjectName(QStringLiteral("F1Book1"));
    book->table().MaxRow(4);
    book->table().MaxCol(3);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, &screen, [this] {
      ++pressed;
      read_on_ok = cells();
    });
    QObject::connect(book, &F1Book::Edited, &screen,
                     [this](int row, int col, int last_row, int last_col) {
                       edits.push_back(Range_Text({row, col, last_row, last_col}));
                       cursor_at_edit = cursor();
                     });
    screen.resize(500, 400);
    screen.show();
    screen.activateWindow();
    EXPECT_TRUE(Has_Keyboard(&screen));
    before->setFocus();
    QApplication::clipboard()->clear();
  }
  ~SpreadsheetView() override { QApplication::clipboard()->clear(); }

  Spreadsheet_Table& table() { return book->table(); }
  std::string cursor() {
    return Range_Text({table().Row(), table().Col(), table().Row(), table().Col()});
  }
  std::string cells() {
    std::string all;
    for (int row = 1; row <= table().MaxRow(); ++row) {
      for (int col = 1; col <= table().MaxCol(); ++col) {
        all += table().TextRC(row, col) + (col < table().MaxCol() ? "," : "/");
      }
    }
    return all;
  }
  /// The editor of a cell; nothing unless the user is typing in it.
  QLineEdit* Editor() {
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    return line != nullptr && line->parent() == book->viewport() ? line : nullptr;
  }
  bool Is_Editing() { return Editor() != nullptr; }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void Type_In(const QString& text) {
    for (const QChar character : text) {
      QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
  }
  QPoint Place(int row, int col) {
    return book->visualRect(book->model()->index(row - 1, col - 1)).center();
  }
  void Click(int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(book->viewport(), Qt::LeftButton, modifiers, Place(row, col));
  }
  void Double_Click(int row, int col) {
    Click(row, col);
    QTest::mouseDClick(book->viewport(), Qt::LeftButton, {}, Place(row, col));
  }
  void Start_At(int row, int col) {
    book->setFocus();
    table().SetActiveCell(row, col);
  }
  void Set_Clipboard(const char* text) {
    QApplication::clipboard()->setText(QString::fromUtf8(text));
  }
  std::string Clipboard() { return QApplication::clipboard()->text().toStdString(); }
  QVariant Data(int row, int col, int role) {
    return book->model()->index(row - 1, col - 1).data(role);
  }

  QLineEdit* before;
  F1Book* book;
  QPushButton* ok;
  int pressed = 0;
  std::string read_on_ok;
  std::vector<std::string> edits;
  std::string cursor_at_edit;
  QDialog screen;  // goes first: a cell that is still edited then tells its edit
};

}  // namespace barvon::testing
