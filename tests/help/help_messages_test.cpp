#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "help/help_text.h"
#include "help/message_texts.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

std::vector<std::string> Texts_In(const std::string& source) {
  std::vector<std::string> texts;
  for (const Message_Text& found : Message_Texts_Of({{"x.cpp", source}})) {
    texts.push_back(found.text);
  }
  return texts;
}

TEST(MessageTexts, Adjacent_Literals_Are_One_Text_And_Blanks_Are_Single) {
  EXPECT_EQ(
      Texts_In("Show_Message({\"It is too large.  \"\n   \"Please \\\"correct\\\" it.\\n\"});"),
      std::vector<std::string>{"It is too large. Please \"correct\" it."});
}

TEST(MessageTexts, A_Text_Put_Together_Gives_Its_Pieces_Of_Several_Words) {
  EXPECT_EQ(
      Texts_In("Show_Warning(\"The file \" + Name(path, ')') + \" x \" + b + \" has gone away\","
               " \"BARVON Error\");"),
      (std::vector<std::string>{"The file", "has gone away"}));
}

TEST(MessageTexts, Constants_And_Procedures_That_Hand_A_Text_On_Are_Followed) {
  EXPECT_EQ(
      Texts_In("inline constexpr char kGone[] =\n    \"It is\"\n    \" gone\";\n"
               "bool Agrees(const char* question) {\n"
               "  return Show_Message({question, \"BARVON Error\"}) == Answer::Yes;\n}\n"
               "void Refuse(const std::string& what, int error) { Agrees(what + Name(error)); }\n"
               "void Run() { Ask(kGone, Buttons::YesNo); }\n"
               "void Stop() { if (Agrees(\"Is it so?\")) Refuse(\"Can't read\", 3); }\n"),
      (std::vector<std::string>{"It is gone", "Is it so?", "Can't read"}));
}

TEST(MessageTexts, What_Is_No_Message_Is_None) {
  EXPECT_EQ(Texts_In("// Show_Message({\"in a remark\"});\nAdd_Caption(\"of a field\");"),
            std::vector<std::string>{});
}

TEST(HelpMessages, Every_Message_Of_The_Program_Is_Explained_Word_For_Word) {
  namespace fs = std::filesystem;
  std::vector<Source_Text> sources;
  for (const auto& entry : fs::recursive_directory_iterator(BARVON_SOURCE "/src")) {
    const std::string name = entry.path().string();
    if (name.ends_with(".cpp") || name.ends_with(".h")) sources.push_back({name, Read_Text(name)});
  }
  const auto messages = Message_Texts_Of(sources);
  EXPECT_GE(messages.size(), 60U);
  std::string help;
  for (const std::string& page : Help_Pages())
    help += With_Single_Blanks(Readable_Page(page)) + "\n";
  for (const Message_Text& message : messages) {
    EXPECT_NE(help.find(message.text), std::string::npos) << message.file << ": " << message.text;
  }
}

}  // namespace
}  // namespace barvon
