#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <optional>
#include <string>

#include "results/cell_values.h"
#include "results/results.h"

class QAction;

namespace barvon {

class Picture;

using Results_Held = std::shared_ptr<const Results>;

/// What the pages show. `other` is null unless a second project's results are held against it.
struct Shown_Results {
  Results_Held own, other;
};

/// A map as it goes to a GIS: the cells, and what they are.
struct Shown_Map {
  Cell_Values cells;
  std::vector<double> levels;  // of the contours on the screen
  std::string what;            // "Sand at 20 ft, 600 s"
  std::string unit;            // "mg/l", "ft"
  /// Whose map it is: that of the other results lies at their place, with their outlines. A
  /// difference, and where a page does not say, is of the own.
  std::shared_ptr<const Results> of = nullptr;
};

/// One of the four views of the window. The window owns menus, files, printing and the clipboard;
/// a page owns its choices (species, depth, time) and its picture.
class Graph_Page : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  /// Shows new results. Of the same project a choice that they hold too (a species by its name, a
  /// depth, a time) stays; another one begins at its telling view.
  virtual void Show(const Shown_Results& shown) = 0;
  /// Goes to what the overview shows of the page in small. Only once Show was called.
  virtual void Show_Telling() {}
  /// The picture that is saved, copied and printed: never null once Show was called.
  virtual Picture* Shown_Picture() = 0;
  /// The picture shows more than the words that there is nothing to show.
  virtual bool Has_Content() const = 0;
  /// The numbers of that picture as CSV: "," between, "." as the point, CR LF, UTF-8, a line of
  /// headings with units first.
  virtual std::string Numbers() const = 0;
  /// Offered as the name of a file, without extension: "Sand at 20 ft, 600 s".
  virtual QString Picture_Name() const = 0;
  /// The map that is shown; nothing on a page that shows none.
  virtual std::optional<Shown_Map> Map_Shown() const { return std::nullopt; }
  /// How many pictures the page's sequence over time has, and shows one of them, from 0.
  virtual int Sequence_Length() const { return 0; }
  virtual int Sequence_Place() const { return 0; }
  virtual void Show_In_Sequence(int) {}

 signals:
  /// What is under the pointer or changed, for the status line; empty: nothing.
  void Told(const QString& words);
  /// The telling view of a page is asked for, by its kind: 0 overview, 1 maxima, 2 contours, 3
  /// deposit.
  void Asked_For(int kind);
  /// The picture or its choices have changed.
  void Changed();
};

}  // namespace barvon
