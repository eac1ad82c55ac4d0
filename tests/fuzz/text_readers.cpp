#include <algorithm>

#include "fuzz/readers.h"
#include "platform/files/line_ends.h"
#include "platform/files/text_content.h"
#include "platform/files/text_encoding.h"
#include "platform/files/text_rows.h"
#include "platform/table/decimal_commas.h"
#include "platform/table/tab_text.h"
#include "site/grid_csv.h"

namespace barvon::fuzz {
namespace {

// ---- Tables of a grid as comma separated values

constexpr int kRows = 4, kColumns = 3;

std::vector<std::string> Csv_Files() {
  return {"1,2,3\r\n-4.5,5e-7,6\r\n7,8,9\r\n10,11,12\r\n",
          "\xEF\xBB\xBF\"1\"; \"2\" ;3\n4;5;6\r7;8;9\r\n1E2;.5;-0\n\n"};
}

void Read_Csv(std::string_view bytes) {
  const Grid_Csv read = Read_Grid_Csv(bytes, kRows, kColumns);
  Demand(read.fault.empty() != read.rows.empty(), "a table or a fault");
}

void Hold_Csv(std::string_view bytes) {
  const Grid_Csv read = Read_Grid_Csv(bytes, kRows, kColumns);
  Demand(Is_UTF8(read.fault), "a fault is a text");
  if (!read.fault.empty()) return;
  const std::string written = Write_Grid_Csv(read.rows);
  const Grid_Csv again = Read_Grid_Csv(written, kRows, kColumns);
  Demand(again.fault.empty() && Write_Grid_Csv(again.rows) == written, "a table stays as it is");
}

// ---- The clipboard

std::vector<std::string> Tab_Texts() {
  return {"1\t2\r\n3,5\t\"a \"\"b\"\"\"\r\n", "\"a\tb\nc\"\t4\n"};
}

void Read_Clipboard(std::string_view bytes) {
  const Text_Block cells = Read_Tab_Text(bytes);
  Decimal_Comma_Cells(cells);
}

void Hold_Clipboard(std::string_view bytes) {
  Text_Block cells = Read_Tab_Text(bytes);
  Demand(!cells.empty(), "a text is a cell at least");
  With_Points(cells);
  // A cell alone is its text, for any field.
  if (cells.size() == 1 && cells[0].size() == 1) return;
  Demand(Read_Tab_Text(Write_Tab_Text(cells)) == cells, "cells stay as they are");
}

// ---- Texts in a window

std::vector<std::string> Texts() {
  return {"Plain\r\nlines\n", "M\xFCnde\r\rin Windows-1252", "\xEF\xBB\xBFM\xC3\xBCnde\n\r\n"};
}

void Read_Content(std::string_view bytes) {
  const Text_Content content = Content_Of(bytes);
  Can_Be_Edited(content.text);
  Text_Rows rows(bytes.size());
  rows.Add(bytes.substr(0, bytes.size() / 2));
  rows.Add(bytes.substr(bytes.size() / 2));
  rows.Finish();
  for (std::size_t i = 0; i < rows.Rows(); ++i) Row_Text(rows.Bytes(rows.Row_Of(i)));
}

void Hold_Content(std::string_view bytes) {
  const Text_Content content = Content_Of(bytes);
  Demand(Is_UTF8(content.text), "a content is a text");
  Demand(Bytes_Of(content) == std::string(bytes), "a text that is not edited stays as it is");
  Demand(To_Settings_Bytes(From_Settings_Bytes(To_Settings_Bytes(content.text))) ==
             To_Settings_Bytes(content.text),
         "a setting stays as it is");
  Demand(To_File_Bytes(From_File_Bytes(bytes)) == bytes, "every byte survives");
  Demand(With_Former_Line_Ends(content.text, With_Line_Feeds(content.text)) == content.text,
         "lines that are not edited keep their ends");

  Text_Rows rows(bytes.size());
  rows.Add(bytes);
  rows.Finish();
  std::size_t place = rows.Row_Of(0).start;  // behind a byte order mark
  for (std::size_t i = 0; i < rows.Rows(); ++i) {
    const Text_Rows::Row row = rows.Row_Of(i);
    Demand(row.start == place && row.end >= row.start && row.next >= row.end, "rows follow");
    Demand(rows.Row_At(row.start) == i, "a row is found by its place");
    place = row.next;
  }
  Demand(place == bytes.size(), "the rows are the whole text");
  for (std::size_t at = rows.Row_Of(0).start; at < std::min<std::size_t>(bytes.size(), 200);
       at += 7) {
    Demand(rows.Before(at) <= at && rows.Behind(at) >= at, "characters have an order");
    rows.Where(at);
  }
  for (const bool backward : {false, true}) {
    const auto found = rows.Find("m\xC3\xBC", bytes.size() / 2, backward);
    Demand(!found || *found < bytes.size(), "what is found is in the text");
  }
}

constexpr Reader kReaders[] = {
    {"grid_csv", 14, Csv_Files, Read_Csv, Hold_Csv, nullptr},
    {"clipboard", 0, Tab_Texts, Read_Clipboard, Hold_Clipboard, nullptr},
    {"text", 0, Texts, Read_Content, Hold_Content, nullptr},
};

}  // namespace

std::span<const Reader> Text_Readers() { return kReaders; }

}  // namespace barvon::fuzz
