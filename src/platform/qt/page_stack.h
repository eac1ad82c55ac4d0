#pragma once

#include <QAbstractButton>
#include <QStackedWidget>
#include <QString>

namespace barvon {

/// The buttons of a step-by-step screen, as far as it has them.
struct Step_Buttons {
  QAbstractButton* back = nullptr;
  QAbstractButton* next = nullptr;
  QAbstractButton* finished = nullptr;
};

/// Pages of a step-by-step screen, of which one is shown. The screen decides what a step does and
/// whether it may be taken.
class Page_Stack : public QStackedWidget {
 public:
  explicit Page_Stack(QWidget* parent);

  /// To be told once all pages are there. The buttons go by the page from now on: Back is disabled
  /// on the first one. Finished is enabled on the last page of a complete screen alone, and Next
  /// everywhere else.
  void Set_Buttons(const Step_Buttons& buttons);

  void Start();  // shows the first page
  void Go_On();  // to the next page; on the last one it stays
  void Go_Back();
  bool Is_At_End() const { return currentIndex() == count() - 1; }

  /// Whether nothing is lacking once the last page is reached. True unless told.
  void Set_Complete(bool complete);
  bool Is_Complete() const { return complete_; }

  /// "Step 2 of  8", with both blanks.
  QString Step_Text() const;

 private:
  void Show_Buttons();

  Step_Buttons buttons_;
  bool complete_ = true;
};

}  // namespace barvon
