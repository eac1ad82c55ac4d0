#include "platform/files/text_rows.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace barvon {
namespace {

using namespace std::string_literals;

Text_Rows Rows_Of(const std::string& bytes, std::size_t slice = 1000) {
  Text_Rows rows(bytes.size());
  for (std::size_t at = 0; at < bytes.size(); at += slice) rows.Add(bytes.substr(at, slice));
  rows.Finish();
  return rows;
}

std::vector<std::string> Texts(const Text_Rows& rows) {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < rows.Rows(); ++i) texts.emplace_back(rows.Bytes(rows.Row_Of(i)));
  return texts;
}

using Lines = std::vector<std::string>;

TEST(TextRows, A_Row_Is_A_Line_Whatever_It_Ends_In) {
  for (std::size_t slice = 1; slice < 12; ++slice) {
    EXPECT_EQ(Texts(Rows_Of("a\r\nbc\n\rd\r", slice)), (Lines{"a", "bc", "", "d", ""})) << slice;
    EXPECT_EQ(Texts(Rows_Of("a\nno end", slice)), (Lines{"a", "no end"}));
    EXPECT_EQ(Texts(Rows_Of("\r\n", slice)), (Lines{"", ""}));
    EXPECT_EQ(Texts(Rows_Of("\xEF\xBB\xBFmark\n", slice)), (Lines{"mark", ""}));
  }
  EXPECT_EQ(Texts(Rows_Of("")), (Lines{""}));
}

TEST(TextRows, What_Is_Still_Being_Read_Shows_Its_Whole_Lines) {
  Text_Rows rows;
  EXPECT_EQ(rows.Rows(), 0U);
  rows.Add("one\r\ntwo\r");
  EXPECT_EQ(Texts(rows), (Lines{"one"})) << "a line feed may follow";
  rows.Add("\nthr");
  EXPECT_EQ(Texts(rows), (Lines{"one", "two"}));
  rows.Finish();
  EXPECT_EQ(Texts(rows), (Lines{"one", "two", "thr"}));
}

TEST(TextRows, A_Long_Line_Has_Several_Rows_And_No_Letter_Is_Cut) {
  const std::string line(Text_Rows::kLongestRow, 'x');
  EXPECT_EQ(Texts(Rows_Of(line)), (Lines{line}));
  EXPECT_EQ(Texts(Rows_Of(line + "\r\nb")), (Lines{line, "b"}));
  EXPECT_EQ(Texts(Rows_Of(line + "y\nb", 7)), (Lines{line, "y", "b"}));
  const std::string accented = line.substr(1) + "\xC3\xA9z";
  EXPECT_EQ(Texts(Rows_Of(accented)), (Lines{line.substr(1), "\xC3\xA9z"}));
  const std::string bytes(3000, '\x80');
  EXPECT_EQ(Rows_Of(bytes).Rows(), 3U);
}

TEST(TextRows, Tells_Line_And_Column_In_Characters) {
  const std::string text = "a\n\xC3\xA9t\xC3\xA9\n" + std::string(2500, 'x') + "\nlast";
  const Text_Rows rows = Rows_Of(text);
  const auto at = [&rows](std::size_t place) {
    const Text_Rows::Line_And_Column where = rows.Where(place);
    return std::pair(where.line, where.column);
  };
  EXPECT_EQ(at(0), std::pair(1UL, 1UL));
  EXPECT_EQ(at(1), std::pair(1UL, 2UL));
  EXPECT_EQ(at(2), std::pair(2UL, 1UL));
  EXPECT_EQ(at(5), std::pair(2UL, 3UL)) << "behind an accented letter and a plain one";
  EXPECT_EQ(at(8 + 2400), std::pair(3UL, 2401UL)) << "the third row of its line";
  EXPECT_EQ(at(text.size()), std::pair(4UL, 5UL));
  EXPECT_EQ(Rows_Of("").Where(0).line, 1U);
  EXPECT_EQ(Rows_Of("\xEF\xBB\xBFx").Where(4).column, 2U) << "the mark is no character";
}

TEST(TextRows, Lines_Are_Counted_Over_Thousands_Of_Rows) {
  std::string text;
  for (int i = 0; i < 10000; ++i) text += "line\r\n";
  const Text_Rows rows = Rows_Of(text, 777);
  EXPECT_EQ(rows.Rows(), 10001U);
  EXPECT_EQ(rows.Where(6 * 5000 + 2).line, 5001U);
  EXPECT_EQ(rows.Where(6 * 5000 + 2).column, 3U);
  EXPECT_EQ(rows.Row_At(6 * 9999), 9999U);
  EXPECT_EQ(rows.Row_At(text.size()), 10000U);
}

TEST(TextRows, Goes_From_Character_To_Character_Over_Line_Ends) {
  const std::string text = "\xC3\xA9\r\nb";
  const Text_Rows rows = Rows_Of(text);
  const std::vector<std::size_t> places = {0, 2, 4, 5};
  for (std::size_t i = 0; i + 1 < places.size(); ++i) {
    EXPECT_EQ(rows.Behind(places[i]), places[i + 1]);
    EXPECT_EQ(rows.Before(places[i + 1]), places[i]);
  }
  EXPECT_EQ(rows.Before(0), 0U);
  EXPECT_EQ(rows.Behind(5), 5U);
  const Text_Rows long_line = Rows_Of(std::string(1500, 'x'));
  EXPECT_EQ(long_line.Before(1024), 1023U) << "over the end of a row in a line";
  EXPECT_EQ(long_line.Behind(1023), 1024U);
}

TEST(TextRows, Finds_Forth_And_Back_In_Either_Case) {
  const Text_Rows rows = Rows_Of("Depth depth\nDEPTH 7\n");
  EXPECT_EQ(rows.Find("depth", 0, false), 0U);
  EXPECT_EQ(rows.Find("depth", 1, false), 6U);
  EXPECT_EQ(rows.Find("dEPTH", 7, false), 12U);
  EXPECT_EQ(rows.Find("depth", 13, false), std::nullopt);
  EXPECT_EQ(rows.Find("depth", 12, true), 6U);
  EXPECT_EQ(rows.Find("depth", 21, true), 12U);
  EXPECT_EQ(rows.Find("depth", 0, true), std::nullopt);
  EXPECT_EQ(rows.Find("7\n", 0, false), 18U);
  EXPECT_EQ(rows.Find("", 0, false), std::nullopt);
  EXPECT_EQ(rows.Find(std::string(99, 'x'), 5, true), std::nullopt);
}

TEST(TextRows, Finds_Accented_Letters_In_Both_Encodings) {
  const Text_Rows rows = Rows_Of("caf\xE9, caf\xC3\xA9");
  EXPECT_EQ(rows.Find("caf\xC3\xA9", 0, false), 0U);
  EXPECT_EQ(rows.Find("caf\xC3\xA9", 1, false), 6U);
  EXPECT_EQ(rows.Find("caf\xC3\xA9", 11, true), 6U);
}

RC_GTEST_PROP(TextRows, Rows_And_Ends_Are_The_Whole_Text, ()) {
  const auto text = *rc::gen::container<std::string>(rc::gen::elementOf("ab\r\n\n\xC3\xA9"s));
  const auto slice = *rc::gen::inRange<std::size_t>(1, 9);
  const Text_Rows rows = Rows_Of(text, slice);
  std::size_t at = 0;
  for (std::size_t i = 0; i < rows.Rows(); ++i) {
    const Text_Rows::Row row = rows.Row_Of(i);
    RC_ASSERT(row.start == at);
    RC_ASSERT(rows.Row_At(row.start) == i);
    RC_ASSERT(rows.Row_At(row.end) == i);
    at = row.next;
  }
  RC_ASSERT(at == text.size());
}

RC_GTEST_PROP(TextRows, Finds_What_A_Plain_Search_Finds, ()) {
  const auto letters = rc::gen::elementOf("aab\n"s);
  const auto text = *rc::gen::container<std::string>(letters);
  const auto wanted = *rc::gen::nonEmpty(rc::gen::container<std::string>(letters));
  const Text_Rows rows = Rows_Of(text);
  for (std::size_t from = 0; from <= text.size() + 1; ++from) {
    const std::size_t forth = text.find(wanted, from);
    const std::size_t back = from == 0 ? std::string::npos : text.rfind(wanted, from - 1);
    RC_ASSERT(rows.Find(wanted, from, false).value_or(std::string::npos) == forth);
    RC_ASSERT(rows.Find(wanted, from, true).value_or(std::string::npos) == back);
  }
}

}  // namespace
}  // namespace barvon
