#pragma once

#include <QFrame>

namespace barvon {

/// A frame in the colour of a choice, with an illustration that chooses when it is clicked.
class Choice_Frame : public QFrame {
  Q_OBJECT

 public:
  explicit Choice_Frame(QWidget* parent);
  void Show_Chosen(bool chosen);

 signals:
  void Clicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace barvon
