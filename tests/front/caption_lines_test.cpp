#include "front/caption_lines.h"

#include <gtest/gtest.h>

namespace quintara {
namespace {

// Letters 10 wide, blanks 5; what counts is that they differ.
double Measure(std::string_view text) {
  double width = 0;
  for (const char c : text) width += c == ' ' ? 5 : 10;
  return width;
}

TEST(CaptionLinesTest, BreaksWhereTheNextWordDoesNotFitAndKeepsTheBlanks) {
  const auto widthOf = [](const char* text) { return Measure(text) + 0.01; };
  const struct {
    const char* caption;
    double width;
    std::vector<std::string> lines;
  } cases[] = {{"one two", widthOf("one two"), {"one two"}},
               {"one two", widthOf("one tw"), {"one", "two"}},
               {" one       two", widthOf(" one     "), {" one", "  two"}},  // blanks that don't fit go on
               {"one   two", widthOf("two"), {"one", "two"}},  // unless a word would not fit behind them
               {"  one  two   ", 1000, {"  one  two   "}},
               {"one two  ", widthOf("two"), {"one", "two  "}},
               {"one two", 0, {"one", "two"}},  // a word that is too long stays whole
               {"one\r\n\ntwo", 1000, {"one", "", "two"}}};
  for (const auto& [caption, width, lines] : cases)
    EXPECT_EQ(CaptionLines(caption, Measure, width), lines) << caption << " in " << width;
}

TEST(CaptionLinesTest, ARunOfBlanksFarToTheRightBreaksWhateverTheLettersLeaveRoomFor) {
  const auto lines = [](const char* caption, double width) { return CaptionLines(caption, Measure, width); };
  using Lines = std::vector<std::string>;
  EXPECT_EQ(lines("click now      the gun", 140), (Lines{"click now", "the gun"}))
      << "though \"the\" has room";
  EXPECT_EQ(lines("to   two   three", 120), (Lines{"to   two", "three"})) << "the last run counts";
  EXPECT_EQ(lines("to      two nine", 120), (Lines{"to      two", "nine"})) << "columns stay";
}

TEST(CaptionLinesTest, WhatHasNoRoomIsSetTighterWhereThatHelps) {
  const auto stretchIn = [](double width) { return FitCaption("one two", Measure, 12, width, 12).stretch; };
  EXPECT_EQ(stretchIn(65), 100);
  EXPECT_EQ(stretchIn(64), 97);
  EXPECT_EQ(stretchIn(56), 85);
  EXPECT_EQ(stretchIn(55), 100) << "it would have to be tighter still";
  // A line of which two fifths are cut off counts as shown.
  EXPECT_EQ(FitCaption("one two", Measure, 10, 30, 16).lines.size(), 2u);
  EXPECT_EQ(FitCaption("one two", Measure, 10, 56, 15).stretch, 85);
}

}  // namespace
}  // namespace quintara
