// How a table's work grows with its cells, and what it costs beside the plain data. Read the
// ratios: the last two lines of a family give its growth, "BigO" by cells; times are the machine's.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>

#include "core/book_numbers.h"
#include "pictures/depth_map.h"
#include "platform/qt/table/spreadsheet_view.h"

namespace {

using namespace barvon;

void Fill(Spreadsheet_Table& table, int points) {
  const Table_Fill fill(table);
  table.MaxRow(points);
  table.MaxCol(points);
  for (int row = 1; row <= points; ++row) {
    for (int col = 1; col <= points; ++col) table.NumberRC(row, col, row + col / 100.0);
  }
}

int Points(const benchmark::State& state) { return static_cast<int>(state.range(0)); }

void Count_Cells(benchmark::State& state) { state.SetComplexityN(state.range(0) * state.range(0)); }

void Fill_Plain_Table(benchmark::State& state) {
  for (auto _ : state) {
    Spreadsheet_Table table(kBookNumbers);
    Fill(table, Points(state));
    benchmark::DoNotOptimize(table.NumberRC(1, 1));
  }
  Count_Cells(state);
}

void Fill_Shown_Table(benchmark::State& state) {
  F1Book book(kBookNumbers);
  book.resize(600, 400);
  book.show();
  for (auto _ : state) {
    Fill(book.table(), Points(state));
    benchmark::DoNotOptimize(book.grab());
  }
  Count_Cells(state);
}

/// Grows with what is in sight alone.
void Scroll_Through_Table(benchmark::State& state) {
  F1Book book(kBookNumbers);
  book.resize(600, 400);
  book.show();
  Fill(book.table(), Points(state));
  int row = 0;
  for (auto _ : state) {
    book.verticalScrollBar()->setValue(row);
    row = (row + 1) % (book.verticalScrollBar()->maximum() + 1);
    benchmark::DoNotOptimize(book.grab());
  }
  Count_Cells(state);
}

void Draw_Depth_Map(benchmark::State& state) {
  Depth_Map map;
  map.resize(600, 400);
  map.show();
  Depth_Grid grid;
  grid.rows = grid.columns = Points(state);
  for (int cell = 0; cell < grid.rows * grid.columns; ++cell) grid.depths.push_back(cell % 97);
  for (auto _ : state) {
    map.Show(grid);
    map.Drawn();  // at once, not with the next event
    benchmark::DoNotOptimize(map.grab());
  }
  Count_Cells(state);
}

BENCHMARK(Fill_Plain_Table)->RangeMultiplier(2)->Range(12, 96)->Complexity(benchmark::oN);
BENCHMARK(Fill_Shown_Table)->RangeMultiplier(2)->Range(12, 96)->Complexity();
BENCHMARK(Scroll_Through_Table)->RangeMultiplier(2)->Range(24, 96)->Complexity(benchmark::o1);
BENCHMARK(Draw_Depth_Map)->RangeMultiplier(2)->Range(12, 96)->Complexity();

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
