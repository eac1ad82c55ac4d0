#include "platform/files/profile_settings.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class ProfileSettings : public ::testing::Test {
 protected:
  std::string Read(const std::string& section, const std::string& key) const {
    return Read_Profile_String(path_, section, key, "fallback");
  }
  bool Write(const std::string& section, const std::string& key, const std::string& value) const {
    return Write_Profile_Strings(path_, {{section, key, value}}) == 0;
  }
  void Hold(const std::string& text) const { Write_Text(path_, text); }
  std::string Text() const { return Read_Text(path_); }

  Scratch_Folder folder_;
  std::string path_ = folder_ / "BARVON.INI";
};

TEST_F(ProfileSettings, A_Missing_File_Section_Or_Key_Gives_The_Fallback) {
  EXPECT_EQ(Read("Recent Files", "RecentFile1"), "fallback");
  Hold("[Recent Files]\r\nRecentFile1=a.dui\r\n[Graph File]\r\n");
  EXPECT_EQ(Read("Simulation Type", "SimType"), "fallback");
  EXPECT_EQ(Read("Graph File", "RecentFile1"), "fallback");
}

TEST_F(ProfileSettings, Writing_To_A_Missing_File_Makes_It) {
  EXPECT_TRUE(Write("Recent Files", "RecentFile1", "/data/site.dui"));
  EXPECT_EQ(Text(), "[Recent Files]\r\nRecentFile1=/data/site.dui\r\n");
  EXPECT_EQ(Read("Recent Files", "RecentFile1"), "/data/site.dui");
}

TEST_F(ProfileSettings, Every_Other_Line_Keeps_Its_Bytes_And_Its_Place) {
  Hold(
      "; kept by hand\r\n\r\n[Other]  trailing words\nGraphFile = theirs\n\t; odd\r\n"
      "[Graph File]\r\n;GraphFile=comment\r\n GraphFile = old  \r\nNoise without a sign\r\n"
      "[Graph File]\r\nGraphFile=second\r\n\x1A");
  EXPECT_TRUE(Write("graph file", "GRAPHFILE", "new"));
  EXPECT_EQ(Text(),
            "; kept by hand\r\n\r\n[Other]  trailing words\nGraphFile = theirs\n\t; odd\r\n"
            "[Graph File]\r\n;GraphFile=comment\r\n GraphFile = new\r\nNoise without a sign\r\n"
            "[Graph File]\r\nGraphFile=second\r\n\x1A");
}

TEST_F(ProfileSettings, Of_Duplicate_Sections_And_Keys_The_First_Counts) {
  Hold("[A]\r\nk=1\r\nk=2\r\n[B]\r\n[A]\r\nk=3\r\nlate=4\r\n");
  EXPECT_EQ(Read("A", "k"), "1");
  EXPECT_EQ(Read("A", "late"), "fallback");
  EXPECT_TRUE(Write("A", "late", "5"));
  EXPECT_EQ(Text(), "[A]\r\nk=1\r\nk=2\r\nlate=5\r\n[B]\r\n[A]\r\nk=3\r\nlate=4\r\n");
}

TEST_F(ProfileSettings, A_Missing_Key_Goes_Behind_The_Last_Line_Of_Its_Section_That_Is_Not_Blank) {
  Hold("[A]\r\nk=1\r\n\r\n  \r\n[B]\r\nx=1\r\n");
  EXPECT_TRUE(Write("A", "m", "2"));
  EXPECT_EQ(Text(), "[A]\r\nk=1\r\nm=2\r\n\r\n  \r\n[B]\r\nx=1\r\n");
}

TEST_F(ProfileSettings, A_Missing_Section_Goes_To_The_End) {
  Hold("[A]\nk=1");
  EXPECT_TRUE(Write("B", "m", "2"));
  EXPECT_EQ(Text(), "[A]\nk=1\r\n[B]\r\nm=2\r\n");
}

TEST_F(ProfileSettings, The_Last_Line_May_Lack_Its_End) {
  Hold("[A]\r\nk=1");
  EXPECT_TRUE(Write("A", "k", "22"));
  EXPECT_EQ(Text(), "[A]\r\nk=22");
  EXPECT_TRUE(Write("A", "m", "3"));
  EXPECT_EQ(Text(), "[A]\r\nk=22\r\nm=3\r\n");
}

TEST_F(ProfileSettings, A_Replaced_Line_Keeps_Its_Own_Line_End) {
  Hold("[A]\nk=1\nm=2\r\n");
  EXPECT_TRUE(Write("A", "k", "3"));
  EXPECT_TRUE(Write("A", "m", "4"));
  EXPECT_EQ(Text(), "[A]\nk=3\nm=4\r\n");
}

TEST_F(ProfileSettings, Trailing_Blanks_Are_Written_As_They_Stand) {
  EXPECT_TRUE(Write("Help Status", "HelpOn", "On  "));
  EXPECT_EQ(Text(), "[Help Status]\r\nHelpOn=On  \r\n");
  EXPECT_EQ(Read("Help Status", "HelpOn"), "On");
}

TEST_F(ProfileSettings, Writing_A_Value_With_Leading_Blanks_Again_Does_Not_Pile_Them_Up) {
  Hold("[A]\r\nk =   old\r\n");
  EXPECT_TRUE(Write("A", "k", "  new"));
  EXPECT_TRUE(Write("A", "k", "  new"));
  EXPECT_EQ(Text(), "[A]\r\nk =  new\r\n");
}

TEST_F(ProfileSettings, Blanks_And_One_Pair_Of_Quotes_Around_A_Value_Are_Dropped) {
  Hold("[A]\r\na= \t x y \t\r\nb=\"\"q\"\"\r\nc='p'\r\nd=\"\r\ne=\"x'\r\nf=\" s \"\r\ng=\r\n");
  EXPECT_EQ(Read("A", "a"), "x y");
  EXPECT_EQ(Read("A", "b"), "\"q\"");
  EXPECT_EQ(Read("A", "c"), "p");
  EXPECT_EQ(Read("A", "d"), "\"");
  EXPECT_EQ(Read("A", "e"), "\"x'");
  EXPECT_EQ(Read("A", "f"), " s ");
  EXPECT_EQ(Read("A", "g"), "");
}

TEST_F(ProfileSettings, A_Value_Is_Cut_To_255_Bytes_Between_Two_Characters) {
  Hold("[A]\r\nplain=" + std::string(300, 'x') + "\r\n");
  EXPECT_EQ(Read("A", "plain"), std::string(255, 'x'));
  // 254 letters, then one character of two bytes that would be cut in half.
  EXPECT_TRUE(Write("A", "wide", std::string(254, 'x') + "\xC3\xA9yz"));
  EXPECT_EQ(Read("A", "wide"), std::string(254, 'x'));
  EXPECT_TRUE(Write("A", "just", std::string(253, 'x') + "\xC3\xA9yz"));
  EXPECT_EQ(Read("A", "just"), std::string(253, 'x') + "\xC3\xA9");
}

TEST_F(ProfileSettings, Texts_Go_Through_The_Encoding_Of_Settings) {
  EXPECT_TRUE(Write("A", "western", "/data/caf\xC3\xA9"));
  EXPECT_TRUE(Write("A", "greek", "/data/\xCE\xB1"));
  EXPECT_EQ(Text(), "[A]\r\nwestern=/data/caf\xE9\r\ngreek=/data/\xCE\xB1\r\n");
  EXPECT_EQ(Read("A", "western"), "/data/caf\xC3\xA9");
  EXPECT_EQ(Read("A", "greek"), "/data/\xCE\xB1");
}

TEST_F(ProfileSettings, A_Value_Or_Name_That_Would_Break_A_Line_Is_Refused) {
  Hold("[A]\r\nk=1\r\n");
  EXPECT_FALSE(Write("A", "k", "two\nlines"));
  EXPECT_FALSE(Write("A", "k", "two\rlines"));
  EXPECT_FALSE(Write("A]", "k", "2"));
  EXPECT_FALSE(Write("A\n", "k", "2"));
  EXPECT_FALSE(Write("", "k", "2"));
  EXPECT_FALSE(Write("A", "", "2"));
  EXPECT_FALSE(Write("A", "k=", "2"));
  EXPECT_FALSE(Write("A", ";k", "2"));
  EXPECT_FALSE(Write("A", "[k", "2"));
  EXPECT_FALSE(Write("A", " k", "2"));
  EXPECT_EQ(Text(), "[A]\r\nk=1\r\n");
}

TEST_F(ProfileSettings, Writing_What_Is_There_Leaves_The_File_Untouched) {
  Hold("[A]\r\nk = 1\r\n");
  struct stat before {};
  struct stat after {};
  ASSERT_EQ(::stat(path_.c_str(), &before), 0);
  EXPECT_TRUE(Write("A", "k", "1"));
  ASSERT_EQ(::stat(path_.c_str(), &after), 0);
  EXPECT_EQ(before.st_ino, after.st_ino);
  EXPECT_EQ(Text(), "[A]\r\nk = 1\r\n");
}

TEST_F(ProfileSettings, Several_Keys_Go_There_One_After_The_Other) {
  Hold("[A]\r\nk=1\r\n");
  EXPECT_EQ(Write_Profile_Strings(
                path_, {{"B", "m", "2"}, {"A", "k", "3"}, {"a", "n", "4"}, {"B", "M", "5"}}),
            0);
  EXPECT_EQ(Text(), "[A]\r\nk=3\r\nn=4\r\n[B]\r\nm=5\r\n");
}

TEST_F(ProfileSettings, One_Key_That_Is_Refused_Keeps_The_Others_From_The_File) {
  Hold("[A]\r\nk=1\r\n");
  EXPECT_EQ(Write_Profile_Strings(path_, {{"A", "k", "2"}, {"A", "m", "two\nlines"}}), EINVAL);
  EXPECT_EQ(Text(), "[A]\r\nk=1\r\n");
}

TEST_F(ProfileSettings, A_File_That_Can_Not_Be_Read_Is_Not_Replaced) {
  path_ = folder_ / "folder";
  ASSERT_EQ(::mkdir(path_.c_str(), 0700), 0);
  EXPECT_EQ(Read("A", "k"), "fallback");
  EXPECT_FALSE(Write("A", "k", "1"));
  EXPECT_EQ(Names_In(folder_.path()), std::vector<std::string>{"folder"});
}

TEST_F(ProfileSettings, A_Link_Is_Followed_And_Stays_A_Link) {
  Write_Text(folder_ / "real.ini", "[A]\r\nk=1\r\n");
  ASSERT_EQ(::symlink("real.ini", path_.c_str()), 0);
  EXPECT_TRUE(Write("A", "k", "2"));
  EXPECT_EQ(Read_Text(folder_ / "real.ini"), "[A]\r\nk=2\r\n");
  struct stat status {};
  ASSERT_EQ(::lstat(path_.c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
}

TEST_F(ProfileSettings, A_Byte_Order_Mark_Does_Not_Hide_The_First_Section) {
  Hold("\xEF\xBB\xBF[A]\r\nk=1\r\n");
  EXPECT_EQ(Read("A", "k"), "1");
  EXPECT_TRUE(Write("A", "k", "2"));
  EXPECT_EQ(Text(), "\xEF\xBB\xBF[A]\r\nk=2\r\n");
}

TEST_F(ProfileSettings, A_Hostile_File_Is_Read_And_Kept) {
  const std::string nuls(3, '\0');
  const std::string long_line(10 << 20, '[');
  const std::string text = nuls + "\r\n" + long_line + "\n]]=[\n=\n[A]\n" + nuls + "=1\nk=" + nuls +
                           "v\n" + std::string(10 << 20, '=') + "\n";
  Hold(text);
  EXPECT_EQ(Read("A", "k"), nuls + "v");
  EXPECT_TRUE(Write("A", "m", "2"));
  EXPECT_EQ(Text(), text + "m=2\r\n");
}

std::vector<std::string> Lines_With_Ends(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const auto feed = text.find('\n', at);
    const std::size_t next = feed == std::string::npos ? text.size() : feed + 1;
    lines.push_back(text.substr(at, next - at));
    at = next;
  }
  return lines;
}

rc::Gen<std::string> Any_Line() {
  return rc::gen::element<std::string>("[A]", "[B]", " [a] x", "k=1", "K = 2", "m='3'", "; [A]",
                                       ";k=9", "", "  ", "noise", "=", "[open", "\xE9=\xFF",
                                       std::string("\0k=1", 4), "k", "[]", "\x1A");
}

RC_GTEST_FIXTURE_PROP(ProfileSettings, Writing_Any_Key_Keeps_All_Other_Lines_And_Reads_Back, ()) {
  std::string text;
  for (const auto& line : *rc::gen::container<std::vector<std::string>>(Any_Line())) {
    text += line + *rc::gen::element<std::string>("\r\n", "\n");
  }
  if (*rc::gen::arbitrary<bool>()) text += *Any_Line();
  const auto section = *rc::gen::element<std::string>("A", "b", "New");
  const auto key = *rc::gen::element<std::string>("k", "M", "fresh");
  const auto value = *rc::gen::element<std::string>("", "x", "/a b/c.dui", "caf\xC3\xA9",
                                                    "\xCE\xB1", "[A]", "k=1", ";", "a'b");
  Hold(text);
  RC_ASSERT(Write(section, key, value));
  RC_ASSERT(Read(section, key) == value);

  const std::vector<std::string> before = Lines_With_Ends(text);
  const std::vector<std::string> after = Lines_With_Ends(Text());
  RC_ASSERT(after.size() >= before.size());
  const std::size_t added = after.size() - before.size();
  RC_ASSERT(added <= 2u);
  std::size_t same = 0;  // lines in front of the first change
  while (same < before.size() && after[same] == before[same]) ++same;
  if (added == 0) {
    for (std::size_t i = same + 1; i < before.size(); ++i) RC_ASSERT(after[i] == before[i]);
  } else {
    // An unfinished last line gets its end before something follows it.
    const bool ended = same == before.size() ||
                       (same + 1 == before.size() && after[same] == before[same] + "\r\n");
    for (std::size_t i = same; !ended && i < before.size(); ++i) {
      RC_ASSERT(after[i + added] == before[i]);
    }
  }
  const std::string once = Text();
  RC_ASSERT(Write(section, key, value));
  RC_ASSERT(Text() == once);
}

}  // namespace
}  // namespace barvon
