#pragma once

#include <QWidget>
#include <string>

#include "material/solids_table.h"
#include "platform/qt/fields/tick_list.h"
#include "platform/qt/table/spreadsheet_view.h"

namespace barvon {

/// The library and the solids table of both material screens.
class Solids_Panel : public QWidget {
 public:
  /// `book`: the table's reference.
  explicit Solids_Panel(const char* book);

  void Open(const std::string& section, Solids_Layout layout, const ProjectRecord& record);
  void Separate(bool separated);

  /// What to say before OK stores the fractions; nothing of untouched ones.
  std::string Doubts() const;

  Solids_State& state() { return state_; }
  const Solids_State& state() const { return state_; }
  Tick_List* List() const { return List1; }
  F1Book* Book() const { return F1Book1; }
  Spreadsheet_Table& table() { return F1Book1->table(); }
  const Spreadsheet_Table& table() const { return F1Book1->table(); }

 private:
  void List1_Click(int line, bool on);
  void Set_Notes();

  Solids_State state_;
  Tick_List* List1;
  F1Book* F1Book1;
};

}  // namespace barvon
