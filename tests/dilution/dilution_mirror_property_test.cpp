#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <set>

#include "core/number_reading.h"
#include "core/number_text.h"
#include "dilution/dilution_file.h"
#include "dilution/dilution_mirror.h"
#include "dilution/dilution_rows.h"
#include "dilution/dilution_support.h"

namespace barvon::testing {
namespace {

constexpr int kRows = 9, kSequences = 40, kEdits = 90;

/// A concentration as a person thinks of it: a text, and all that was ever entered for it.
struct Held {
  std::string text;
  std::set<double> ever{0};
  double value() const { return Lenient_Number(text); }
};

/// A row of the list as both tabs show it.
struct Model_Row {
  std::string name, criteria, background;
  std::array<Held, kDilutionTabs> held;
};

struct Model {
  std::array<Model_Row, kRows> rows;
  std::array<std::map<std::string, Held>, kDilutionTabs> kept;
};

class DilutionMirrorProperty : public Dilution_Tables {
 protected:
  struct Step {
    Model before, after;
  };

  std::size_t Any(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }
  std::string New_Name() { return "N" + std::to_string(++last_name_); }
  std::string New_Value() { return std::to_string(++last_value_); }
  static int Line(std::size_t row) { return static_cast<int>(row) + 1; }
  bool Is_Emptied(std::size_t row) const {
    const Model_Row& line = model_.rows[row];
    return line.name.empty() && line.held[tab_].text.empty() && line.criteria.empty() &&
           line.background.empty();
  }
  bool All_Named(std::size_t first, std::size_t last) const {
    for (std::size_t row = first; row <= last; ++row) {
      if (model_.rows[row].name.empty()) return false;
    }
    return true;
  }

  /// A name has come into a row whose concentration nobody has entered.
  void Name_Comes(Dilution_Tab tab, std::size_t row) {
    Model_Row& line = model_.rows[row];
    const auto kept = model_.kept[tab].find(line.name);
    if (line.held[tab].value() != 0 || kept == model_.kept[tab].end()) return;
    line.held[tab] = kept->second;
    model_.kept[tab].erase(kept);
  }
  void Keep(Dilution_Tab tab, const std::string& name, const Held& held) {
    if (held.value() != 0) model_.kept[tab][name] = held;
  }

  /// Runs an edit of the tab in front, which the model has followed already.
  template <class Edit>
  void Do(const Model& before, const Edit& edit) {
    edit();
    history_[tab_].resize(at_[tab_]);
    history_[tab_].push_back({before, model_});
    at_[tab_] = history_[tab_].size();
    // The other tab's steps are of rows that were other ones.
    history_[Other_Tab(tab_)].clear();
    at_[Other_Tab(tab_)] = 0;
  }
  void Forget() {
    for (const Dilution_Tab tab : kTabs) {
      history_[tab].clear();
      at_[tab] = 0;
    }
  }

  void Type_Value() {
    const Model before = model_;
    const std::size_t row = Any(kRows), col = 1 + Any(3);
    Model_Row& line = model_.rows[row];
    // What it displaces for good is another test's matter.
    if (col == 1 && model_.kept[tab_].contains(line.name)) return;
    const std::string text = New_Value();
    if (col == 1) {
      line.held[tab_].text = text;
      line.held[tab_].ever.insert(Lenient_Number(text));
    } else {
      (col == 2 ? line.criteria : line.background) = text;
    }
    Do(before, [&] { Enter(tab_, Line(row), static_cast<int>(col) + 1, {{text}}); });
  }
  void Type_Name() {
    const Model before = model_;
    const std::size_t row = Any(kRows);
    model_.rows[row].name = New_Name();
    Do(before, [&] { Enter(tab_, Line(row), 1, {{model_.rows[row].name}}); });
  }
  /// Other names over several rows: some that stood there, some that were there once, new ones.
  void Paste_Names() {
    const std::size_t first = Any(kRows - 1), last = first + 1 + Any(kRows - first - 1);
    if (!All_Named(first, last)) return;
    const Model before = model_;
    std::vector<std::string> names, once;
    for (std::size_t row = first; row <= last; ++row) names.push_back(model_.rows[row].name);
    std::rotate(names.begin(), names.begin() + 1, names.end());
    const Dilution_Tab other = Other_Tab(tab_);
    for (const auto& [name, held] : model_.kept[other]) {
      if (!Stands(name)) once.push_back(name);
    }
    for (std::string& name : names) {
      if (Any(4) != 0) continue;
      name = New_Name();
      if (once.empty() || Any(2) == 0) continue;
      name = once.back();
      once.pop_back();
    }
    std::map<std::string, Held> moving;
    for (std::size_t row = first; row <= last; ++row) {
      moving[model_.rows[row].name] = std::exchange(model_.rows[row].held[other], {});
    }
    Text_Block cells;
    for (std::size_t row = first; row <= last; ++row) {
      Model_Row& line = model_.rows[row];
      line.name = names[row - first];
      cells.push_back({line.name});
      const auto held = moving.find(line.name);
      if (held != moving.end()) {
        line.held[other] = held->second;
        moving.erase(held);
      }
    }
    for (std::size_t row = first; row <= last; ++row) {
      for (const Dilution_Tab tab : kTabs) Name_Comes(tab, row);
    }
    for (const auto& [name, held] : moving) Keep(other, name, held);
    Do(before, [&] { Enter(tab_, Line(first), 1, cells); });
  }
  /// A row with its concentration over another one: a new name, or one that was there once.
  void Paste_Row() {
    const std::size_t row = Any(kRows);
    const Dilution_Tab other = Other_Tab(tab_);
    Model_Row& line = model_.rows[row];
    if (line.name.empty() || Was_Nameless(other, row)) return;
    const Model before = model_;
    std::string name = New_Name();
    for (const auto& [each, held] : model_.kept[other]) {
      if (!Stands(each) && !model_.kept[tab_].contains(each) && Any(2) == 0) name = each;
    }
    Keep(other, line.name, std::exchange(line.held[other], {}));
    line.name = name;
    const std::string value = New_Value();
    line.held[tab_] = {value, {0, Lenient_Number(value)}};
    Name_Comes(other, row);
    Do(before, [&] { Enter(tab_, Line(row), 1, {{name, value}}); });
  }
  void Clear_Rows() {
    const Model before = model_;
    const std::size_t first = Any(kRows), last = std::min<std::size_t>(first + Any(2), kRows - 1);
    bool changes = false;
    for (std::size_t row = first; row <= last; ++row) {
      if (Is_Emptied(row)) continue;
      changes = true;
      Model_Row& line = model_.rows[row];
      // What has no name, or had none when it was entered, is another test's matter.
      if (line.name.empty() || Was_Nameless(Other_Tab(tab_), row)) return Restore(before);
      // Of a row with nothing but a name the redo is one of the name.
      if (line.held[tab_].text.empty() && line.criteria.empty() && line.background.empty()) {
        return Restore(before);
      }
      Keep(Other_Tab(tab_), line.name, line.held[Other_Tab(tab_)]);
      line = {};
    }
    if (changes) Do(before, [&] { Clear(tab_, {Line(first), 1, Line(last), 7}); });
  }
  void Clear_Names() {
    const Model before = model_;
    const std::size_t first = Any(kRows - 1);
    for (std::size_t row = first; row <= first + 1; ++row) {
      if (model_.rows[row].name.empty()) return Restore(before);
      model_.rows[row].name.clear();
    }
    Do(before, [&] { Clear(tab_, {Line(first), 1, Line(first) + 1, 1}); });
  }
  bool Was_Nameless(Dilution_Tab tab, std::size_t row) const {
    return model_.rows[row].held[tab].value() != 0 && grids.notes[tab][row + 1].names.empty();
  }
  void Restore(const Model& before) { model_ = before; }
  bool Stands(const std::string& name) const {
    return std::ranges::any_of(model_.rows, [&](const Model_Row& row) { return row.name == name; });
  }

  /// What was taken in a row before the undo is still taken.
  void Go_To(const Model& model) {
    const Model from = std::exchange(model_, model);
    for (std::size_t row = 0; row < kRows; ++row) {
      if (model_.rows[row].name != from.rows[row].name) continue;
      for (const Dilution_Tab tab : kTabs) {
        const std::set<double>& ever = from.rows[row].held[tab].ever;
        model_.rows[row].held[tab].ever.insert(ever.begin(), ever.end());
      }
    }
  }
  void Undo() {
    if (at_[tab_] == 0) return;
    const auto range = grids(tab_).Undo();
    ASSERT_TRUE(range);
    Follow_Dilute_Edit(tab_, *range, grids);
    Go_To(history_[tab_][--at_[tab_]].before);
  }
  void Redo() {
    if (at_[tab_] == history_[tab_].size()) return;
    const auto range = grids(tab_).Redo();
    ASSERT_TRUE(range);
    Follow_Dilute_Edit(tab_, *range, grids);
    Go_To(history_[tab_][at_[tab_]++].after);
  }

  void Change_Rows() {
    const std::size_t row = Any(kRows);
    const Cell_Range range{Line(row), 1, Line(row), 1};
    const auto at = model_.rows.begin() + static_cast<std::ptrdiff_t>(row);
    switch (Any(3)) {
      case 0:
        if (!Delete_Dilute_Rows(range, grids)) return;
        std::rotate(at, at + 1, model_.rows.end());
        model_.rows.back() = {};
        break;
      case 1: {
        const Model_Row& last = model_.rows.back();
        if (!last.name.empty() || !last.held[0].text.empty() || !last.held[1].text.empty()) return;
        if (!last.criteria.empty() || !last.background.empty()) return;
        ASSERT_TRUE(Insert_Dilute_Rows(range, grids));
        std::rotate(at, model_.rows.end() - 1, model_.rows.end());
        break;
      }
      default:
        if (!Move_Dilute_Rows(range, true, grids)) return;
        std::iter_swap(at - 1, at);
    }
    Forget();
  }

  void Change_Tab() {
    const bool missing = model_.rows[0].name.empty() && Holds_Rows_Below_List(grids(tab_));
    const bool missing_other =
        model_.rows[0].name.empty() && Holds_Rows_Below_List(grids(Other_Tab(tab_)));
    {
      Scripted_Messages messages(missing || missing_other ? std::vector{Answer::Ok}
                                                          : std::vector<Answer>{});
      Leave_Dilute_Tab(tab_, grids, record);
      if (!missing && !missing_other && model_.rows[0].name.empty()) Forget_All();
    }
    if (!model_.rows[0].name.empty()) Expect_Record();
    // The zeros that are shown now are not those of the step: its redo leaves them in the row.
    for (const Dilution_Tab tab : kTabs) history_[tab].resize(at_[tab]);
    tab_ = Other_Tab(tab_);
  }
  void Forget_All() {
    model_.kept = {};
    Forget();
  }
  void Compute_List() {
    Read_Dilute_Grid(kBulkTab, grids, record);
    Compute();
    for (std::size_t row = 0; row < Count(); ++row) {
      const Model_Row& line = model_.rows[row];
      EXPECT_EQ(record.DiluteParameterNames[row + 1], line.name);
      EXPECT_EQ(record.DiluteBulk[row + 1], line.held[kBulkTab].value());
      EXPECT_TRUE(line.held[kElutriateTab].ever.contains(record.DiluteElutriate[row + 1]))
          << line.name << " has " << record.DiluteElutriate[row + 1];
    }
  }
  void Save_And_Reload() {
    if (Count() == 0 || Holds_Rows_Below_List(bulk) || Holds_Rows_Below_List(elutriate)) return;
    Read_Both_Grids(tab_, grids, record);
    Expect_Record();
    ASSERT_EQ(Read_Dilution_File(Write_Dilution_File(record), record), Failure::None);
    Show_Read_List(grids, record);
    Forget_All();
  }
  std::size_t Count() const {
    std::size_t count = 0;
    while (count < kRows && !model_.rows[count].name.empty()) ++count;
    return count;
  }
  void Expect_Record() {
    ASSERT_EQ(static_cast<std::size_t>(record.DiluteRowCount), Count());
    for (std::size_t row = 0; row < Count(); ++row) {
      const Model_Row& line = model_.rows[row];
      EXPECT_EQ(record.DiluteParameterNames[row + 1], line.name);
      EXPECT_EQ(record.DiluteBulk[row + 1], line.held[kBulkTab].value());
      EXPECT_EQ(record.DiluteElutriate[row + 1], line.held[kElutriateTab].value());
      EXPECT_EQ(record.DiluteCriteria[row + 1], Lenient_Number(line.criteria));
      EXPECT_EQ(record.DiluteBackground[row + 1], Lenient_Number(line.background));
    }
  }
  /// Both tables show the model. An empty cell and a 0 are the same; which of them it is the model
  /// takes over, since only a change of tab fills cells.
  void Expect_Tables() {
    for (const Dilution_Tab tab : kTabs) {
      for (std::size_t row = 0; row < kRows; ++row) {
        Model_Row& line = model_.rows[row];
        EXPECT_EQ(grids(tab).TextRC(Line(row), 1), line.name) << "row " << row + 1;
        Expect_Cell(tab, row, 2, line.held[tab].text);
        Expect_Cell(tab, row, 3, line.criteria);
        Expect_Cell(tab, row, 4, line.background);
      }
      for (const int col : {1, 3, 4}) {
        EXPECT_EQ(Column(tab, col, kRows + 1), Column(Other_Tab(tab), col, kRows + 1));
      }
    }
  }
  void Expect_Cell(Dilution_Tab tab, std::size_t row, int col, std::string& text) {
    EXPECT_EQ(grids(tab).NumberRC(Line(row), col), Lenient_Number(text))
        << "row " << row + 1 << " column " << col << " tab " << tab;
    if (Lenient_Number(text) == 0) text = grids(tab).EntryRC(Line(row), col);
  }
  void Edit_Something() {
    switch (Any(15)) {
      case 0:
      case 1:
      case 2:
        return Type_Value();
      case 3:
      case 4:
        return Type_Name();
      case 5:
      case 6:
        return Paste_Names();
      case 7:
        return Clear_Rows();
      case 8:
        return Clear_Names();
      case 9:
        return Any(3) == 0 ? Change_Rows() : Undo();
      case 10:
        return Redo();
      case 11:
        return Compute_List();
      case 13:
        return Paste_Row();
      case 12:
        return Any(3) == 0 ? Save_And_Reload() : Undo();
      default:
        return Change_Tab();
    }
  }

  std::mt19937 random_;
  Model model_;
  Dilution_Tab tab_ = kBulkTab;
  std::array<std::vector<Step>, kDilutionTabs> history_;
  std::array<std::size_t, kDilutionTabs> at_{};
  int last_name_ = 0, last_value_ = 0;
};

TEST_F(DilutionMirrorProperty, No_Value_Is_Lost_And_None_Goes_To_Another_Name) {
  for (unsigned seed = 1; seed <= kSequences && !HasFailure(); ++seed) {
    random_.seed(seed);
    model_ = {};
    Forget();
    tab_ = kBulkTab;
    Initalize_Dilute_Info(grids, record);
    for (int row = 1; row <= 6; ++row) {
      const std::string name = New_Name(), value = New_Value();
      Model_Row& line = model_.rows[static_cast<std::size_t>(row) - 1];
      line = {name, value, value, {}};
      line.held[kBulkTab] = {value, {0, Lenient_Number(value)}};
      Enter(kBulkTab, row, 1, {{name, value, value, value}});
    }
    Forget();
    for (Spreadsheet_Table* table : grids.tables) table->ForgetEdits();
    for (int edit = 1; edit <= kEdits && !HasFailure(); ++edit) {
      SCOPED_TRACE("sequence " + std::to_string(seed) + ", edit " + std::to_string(edit));
      Edit_Something();
      Expect_Tables();
    }
  }
}

}  // namespace
}  // namespace barvon::testing
