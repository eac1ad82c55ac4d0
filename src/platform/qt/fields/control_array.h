#pragma once

#include <QString>
#include <QWidget>
#include <vector>

namespace barvon {

/// Controls that share a name and differ by their index: `ControlArray<QLineEdit> Text1{this,
/// "Text1", 9}` holds Text1(0) to Text1(8), each found by the objectName "Text1(0)". What a control
/// is made from besides its parent follows at the end.
template <class T>
class ControlArray {
 public:
  template <class... More>
  ControlArray(QWidget* parent, const char* name, int count, int first = 0, const More&... more)
      : first_(first) {
    for (int index = first; index < first + count; ++index) {
      T* control = new T(parent, more...);
      control->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index));
      controls_.push_back(control);
    }
  }

  T* operator()(int index) const { return controls_.at(index - first_); }
  int first() const { return first_; }
  int last() const { return first_ + static_cast<int>(controls_.size()) - 1; }
  auto begin() const { return controls_.begin(); }
  auto end() const { return controls_.end(); }

 private:
  int first_;
  std::vector<T*> controls_;  // owned by their parent
};

}  // namespace barvon
