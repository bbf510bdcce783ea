#include "host/values.h"

#include <gtest/gtest.h>

namespace quintara::host {
namespace {

Word Plain(const std::string& text) {
  return {text, false};
}

// Each of these words is none of its kind, and neither is a quoted one.
template <typename Value>
void ExpectRefused(std::initializer_list<const char*> words) {
  for (const char* word : words) EXPECT_FALSE(Value::Read(Plain(word))) << word;
  EXPECT_FALSE(Value::Read({"0", true}));
}

TEST(ValuesTest, LinesSplitIntoWords) {
  const auto words = *SplitWords("  set\tA.B(1).C  \"two words\" \"\" a\"b ");
  ASSERT_EQ(words.size(), 5u);
  EXPECT_EQ(words[1].text, "A.B(1).C");
  EXPECT_EQ(words[2].text, "two words");
  EXPECT_TRUE(words[2].quoted && words[3].quoted && words[3].text.empty());
  EXPECT_EQ(words[4].text, "a\"b");
  for (const char* line : {"\"", "a \"b", "\"b\\\"", "\"b\\", "\"\\x\"", "\"a\"b", "\"a\"\"b\""}) {
    EXPECT_FALSE(SplitWords(line)) << line;
  }
}

TEST(ValuesTest, TextOfAnyBytesKeepsToItsLineAndComesBack) {
  std::string text;
  for (int i = 0; i < 256; ++i) text += static_cast<char>(i);
  const std::string quoted = Quoted(text);
  EXPECT_EQ(quoted.find_first_of("\r\n\t"), std::string::npos);
  EXPECT_EQ(*Text::Read(SplitWords(quoted)->front()), text);
  EXPECT_EQ(Quoted("a\"b\\c\r\n\td"), R"("a\"b\\c\r\n\td")");
  EXPECT_FALSE(Text::Read(Plain("a")));
}

TEST(ValuesTest, NumbersBooleansAndColoursKeepToTheirType) {
  EXPECT_EQ(*Integer16::Read(Plain("-32768")), -32768);
  EXPECT_EQ(*Integer32::Read(Plain("2147483647")), 2147483647);
  ExpectRefused<Integer16>(
      {"32768", "-32769", "99999999999999999999", "1.5", "1e2", "", "+1", "x", "1x", "-"});
  ExpectRefused<Integer32>({"2147483648"});
  EXPECT_EQ(*Decimal::Read(Plain("340282350000000000000000000000000000000")), 0x1.fffffep127);
  EXPECT_EQ(*Decimal::Read(Plain("-12.5")), -12.5);
  ExpectRefused<Decimal>(
      {"340282360000000000000000000000000000000", "-1e39", "1e999", "inf", "nan", "1,5", ""});
  EXPECT_TRUE(*Boolean::Read(Plain("-1")));
  EXPECT_FALSE(*Boolean::Read(Plain("0")));
  ExpectRefused<Boolean>({"1", "True", "-1.0", "00", ""});
  EXPECT_EQ(ColourCode::Write(0x800000FF), "0x800000FF");
  EXPECT_EQ(*ColourCode::Read(Plain("0x00ab0cDE")), Colour(0x00AB0CDE));
  ExpectRefused<ColourCode>(
      {"0xFF", "255", "0x000000GG", "0x-0000001", "0x0000000000", "00x0000000", "#00000000"});
}

}  // namespace
}  // namespace quintara::host
