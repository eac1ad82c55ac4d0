#pragma once

#include <QIcon>
#include <QLineEdit>
#include <QPointer>
#include <QStyledItemDelegate>

#include "platform/qt/fields/encoding_validator.h"

namespace barvon {

class Book_Model;

/// Where the cursor of a table goes.
enum class Book_Move { None, Up, Down, Left, Right, Next, Previous, Out, Out_Back };

/// Draws the cells of a table and edits them in a line of text.
class Book_Delegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  Book_Delegate(const Book_Model& model, QObject* parent);

  /// How the next editor starts: typing replaces the cell, and every arrow key then leaves it;
  /// otherwise the text is there to be changed, and Left and Right move in it.
  void Start_By_Typing(bool typing) { by_typing_ = typing; }
  /// What the files' encoding does not hold is then typed like anything else.
  void Keep_Any_Letters() { letters_ = Letters::any; }
  Letters letters() const { return letters_; }
  /// The open editor; nothing while no cell is edited.
  QLineEdit* editor() const { return editor_; }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;

 signals:
  /// A key ends the editing of the cell and moves the cursor.
  void Leave(barvon::Book_Move move);

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  const Book_Model& model_;
  QIcon mark_;
  bool by_typing_ = false;
  Letters letters_ = Letters::of_files;
  mutable QPointer<QLineEdit> editor_;  // createEditor is const in the toolkit
};

/// The move that a key asks for; nothing for other keys.
Book_Move Move_Of(const QKeyEvent& key);

}  // namespace barvon
