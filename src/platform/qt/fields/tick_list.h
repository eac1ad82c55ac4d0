#pragma once

#include <QListWidget>
#include <QStringList>
#include <vector>

namespace barvon {

/// A list whose lines are ticked and unticked by a click on the box or by Space. It tells what the
/// user does; what the program does with it is mute.
class Tick_List : public QListWidget {
  Q_OBJECT

 public:
  explicit Tick_List(QWidget* parent);

  /// New lines in the place of the present ones, none ticked. An empty line has no box.
  void Fill(const QStringList& lines);
  /// Rows count from 0.
  bool Is_Ticked(int row) const;
  void Tick(int row, bool on);

 signals:
  void Ticked(int row, bool on);

 private:
  std::vector<bool> ticks_;  // as last told or set: a change of the text is no tick
};

}  // namespace barvon
