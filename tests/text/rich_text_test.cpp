#include "text/rich_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <span>
#include <string>
#include <string_view>

#include "fuzz/rich_text_order.h"
#include "text/utf8.h"

namespace quintara {
namespace {

using namespace std::string_literals;

std::string Wrapped(const std::string& body) {
  return "{\\rtf1\\ansi " + body + "}";
}
RichText ReadBody(const std::string& body) {
  return ReadRichText(Wrapped(body));
}
std::string PlainBody(const std::string& body) {
  return ReadBody(body).PlainText();
}

std::string Repeated(std::string_view piece, std::size_t bytes) {
  std::string text;
  text.reserve(bytes + piece.size());
  while (text.size() < bytes) text += piece;
  return text;
}

// Writes the runs of all paragraphs with a letter for each trait, such as "one|b:two", a paragraph per line.
std::string Looks(const RichText& document) {
  std::string all;
  for (const RichTextParagraph& paragraph : document.paragraphs) {
    if (!all.empty()) all += '\n';
    for (const RichTextRun& run : paragraph.runs) {
      std::string traits;
      if (run.look.bold) traits += 'b';
      if (run.look.italic) traits += 'i';
      if (run.look.underline) traits += 'u';
      if (run.look.raise == RichTextRaise::Superscript) traits += '^';
      if (run.look.raise == RichTextRaise::Subscript) traits += '_';
      if (run.look.halfPoints != 24) traits += std::to_string(run.look.halfPoints);
      if (&run != &paragraph.runs.front()) all += '|';
      all += traits.empty() ? run.text : traits + ':' + run.text;
    }
  }
  return all;
}

struct TextCase {
  std::string body;
  std::string shown;
};
void ExpectPlain(std::span<const TextCase> cases) {
  for (const TextCase& each : cases) EXPECT_EQ(PlainBody(each.body), each.shown) << each.body;
}

TEST(RichTextTest, ShowsCharactersAndEscapes) {
  const TextCase cases[] = {
      {"a\\\\b\\{c\\}", "a\\b{c}"},
      {"caf\\'e9 \\'80\\'9F\\'81", "café €Ÿ\uFFFD"},
      {"raw \xE9\x80", "raw é€"},
      {"a\\~b\\-c\\_d", "a\u00A0b\u00ADc\u2011d"},
      {"\\lquote a\\rquote\\ldblquote b\\rdblquote\\bullet\\emdash\\endash", "‘a’“b”•—–"},
      {"a\r\nb\nc", "abc"},
      {"one\\line two\\tab three\tfour", "one\ntwo\tthree\tfour"},
      {"one\\\r\ntwo\\\nthree", "one\ntwo\nthree"},
      {"\\b  x\\b0-y\\i-z", " x-y-z"},
      {"\\page a\\page b\\sect\\column c", "a\nb\nc"},
      {"a\\'01\\'7f\\u7?b", "ab"},
      {"a\\v secret\\v0 b{\\v gone}c", "abc"},
      {"a\\bin4 }}{{b\\bin0 c\\bin-3 d", "abcd"},
      {"a\\unknown5 b\\ULTRA c\\|d", "abcd"}};
  ExpectPlain(cases);
}

TEST(RichTextTest, PassesOverTheFallbackOfUnicodeCharacters) {
  const TextCase cases[] = {{"\\u945?x", "αx"},
                            {"\\u945 ?x", "αx"},
                            {"\\u945\\'61x", "αx"},
                            {"\\uc2\\u945\\'81\\'40x", "αx"},
                            {"\\uc0\\u945x\\u946 y", "αxβy"},
                            {"{\\uc0\\u945x}\\u946?y", "αxβy"},
                            {"\\uc3\\u945 a{b}c", "αbc"},
                            {"\\u945\\endash x", "αx"},
                            {"\\u945\\b ?x", "αx"},
                            {"\\u945\\par x", "α\nx"},
                            {"\\u-4051?", "\uF02D"},
                            {"\\u-10179?\\u-8704?x", "😀x"},
                            {"\\u55357?\\u55357?\\u56832?x", "\uFFFD😀x"},
                            {"\\u128512?x", "😀x"},
                            {"\\u55357?x\\u56832?\\u55357?\\par y\\u55357?", "\uFFFDx\uFFFD\uFFFD\ny\uFFFD"},
                            {"\\u99999999?\\u-99999999?x", "\uFFFD\uFFFDx"},
                            {"\\u x\\uc-1\\u945x", "xαx"}};
  ExpectPlain(cases);
}

TEST(RichTextTest, SkipsWhatIsNotText) {
  const TextCase cases[] = {
      {"a{\\*\\generator Writer {\\b 1.0};}b", "ab"},
      {"a{\\*\\unheard x{\\par y}}b", "ab"},
      {"{\\info{\\title T}}{\\stylesheet{\\s1 Heading;}}a{\\pict\\wmetafile8 0102}b", "ab"},
      {"a{\\header h}{\\footer f}{\\object{\\*\\objdata 01}}b", "ab"},
      {"a{\\pict\\bin5 {{{{{}b", "ab"},
      {"{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}", "link"},
      {"a{b\\*\\unheard c}d", "abd"},
      // A mark or destination that would make the whole document vanish is disregarded.
      {"a\\*\\unheard b\\info c", "abc"}};
  ExpectPlain(cases);
}

TEST(RichTextTest, KeepsTheLookOfEachGroup) {
  const TextCase cases[] = {
      {"a{\\b b{\\i c}d}e", "a|b:b|bi:c|b:d|e"},
      {"\\b a\\b0 b\\ul c\\ulnone d\\ul e\\ul0 f", "b:a|b|u:c|d|u:e|f"},
      {"x{\\super 2}\\sub i\\nosupersub y\\up6 z\\up0 w\\dn4 v\\dn0", "x|^:2|_:i|y|^:z|w|_:v"},
      {"\\fs40 a\\b\\i b\\plain c", "40:a|bi40:b|c"},
      {"\\fs0 a\\fs-7 b\\fs99999999 c\\fs d", "2:ab|3276:c|d"},
      {"a\\b\\b0 b{\\i}{c}", "abc"},
      {std::string(255, '{') + "\\b a}b", "b:a|b"},  // as deep as a look is kept
      {"{\\b a\\par b}c", "b:a\nb:b|c"}};
  for (const TextCase& each : cases) EXPECT_EQ(Looks(ReadBody(each.body)), each.shown) << each.body;
}

TEST(RichTextTest, TakesFontsAndColoursFromTheirTables) {
  const RichText document = ReadRichText(
      "{\\rtf1\\deff7{\\fonttbl{\\f7\\froman\\fcharset0 Times{\\*\\falt Other} New;}{\\f3 Arial}"
      "{\\f9\\fcharset238 Arial;}{\\f12 "
      "Gr\\'f6\\'dfe}}{\\colortbl;\\red255\\green128\\blue0;\\red-1\\green999 ;}"
      "a{\\f3\\cf1 b\\f9 c}\\f12\\cf2 d\\f500\\cf0 e\\cf77 f\\cf-1\\plain g}");
  std::string runs;
  for (const RichTextRun& run : document.paragraphs.at(0).runs) {
    runs += run.text + "=" + document.fonts[run.look.font];
    runs += run.look.colour ? " " + std::to_string(*run.look.colour) + "|" : "|";
  }
  EXPECT_EQ(runs, "a=Times New|bc=Arial 33023|d=Größe 65280|ef=|g=Times New|");
}

TEST(RichTextTest, LaysOutParagraphs) {
  const RichText document = ReadBody(
      "\\qc\\li720\\ri-30\\fi-360\\sb120\\sa-5\\tx2000\\tqr\\tx1000\\tqdec\\tx3000\\tx0\\tqc\\tx2000 a\\par"
      "{\\qj b\\par}c\\par\\pard d\\li99999999\\qr\\par\\par{\\ql\\li5 e}");
  ASSERT_EQ(document.PlainText(), "a\nb\nc\nd\n\ne");
  const RichTextFormat& first = document.paragraphs[0].format;
  EXPECT_EQ(first.leftIndent, 720);
  EXPECT_EQ(first.rightIndent, -30);
  EXPECT_EQ(first.firstLineIndent, -360);
  EXPECT_EQ(first.spaceBefore, 120);
  EXPECT_EQ(first.spaceAfter, 0);
  ASSERT_EQ(first.tabs.size(), 3u);
  EXPECT_EQ(first.tabs[0].kind, RichTextTabKind::Right);
  EXPECT_EQ(first.tabs[1].kind, RichTextTabKind::Centre);
  EXPECT_EQ(first.tabs[2].kind, RichTextTabKind::Decimal);
  using enum RichTextAlignment;
  const RichTextAlignment alignments[] = {Centre, Justified, Centre, Right};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(document.paragraphs[i].format.alignment, alignments[i]) << i;
  EXPECT_EQ(document.paragraphs[3].format.leftIndent, richTextMaxTwips);
  EXPECT_TRUE(document.paragraphs[3].format.tabs.empty());
  EXPECT_EQ(ReadBody("\\deftab360 a").defaultTabs, 360);
  EXPECT_EQ(ReadBody("a\\par").paragraphs.size(), 1u);
  EXPECT_EQ(ReadBody("").paragraphs.size(), 0u);
}

TEST(RichTextTest, ShowsTableRowsAsTabbedLines) {
  EXPECT_EQ(PlainBody("\\trowd\\cellx100 a\\cell b\\cell\\row c\\cell\\cell\\row d"), "a\tb\nc\t\nd");
  EXPECT_EQ(PlainBody("a\\cell b\\par c\\cell\\row"), "a\tb\nc");
  EXPECT_EQ(PlainBody("a\\cell\\par b\\cell{\\row}"), "a\t\nb");
}

TEST(RichTextTest, ShowsEachBulletOnce) {
  const std::string numbering = "{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}";
  const TextCase cases[] = {
      {"{\\pntext\\f1\\'B7\\tab}" + numbering + "a\\par{\\pntext\\f1\\'B7\\tab}b\\par\\pard c", "*a|*b|c|"},
      {numbering + "a\\par b\\par\\pard c\\par", "*a|*b|c|"},
      {"{\\listtext\\pard\\plain o\\tab}a\\par b", "*a|b|"},
      {"a\\par{\\listtext\\'B7\\tab}b", "a|*b|"},
      {"{\\fonttbl{\\f1 Symbol;}{\\f2 Wingdings 2;}}{\\listtext\\f1 p\\tab}a\\par{\\listtext\\f2 p\\tab}b",
       "*a|*b|"},
      {"{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pndec{\\pntxta.}}a\\par", "1.\ta|"},
      {"{" + numbering + "a\\par}b", "*a|b|"}};
  for (const TextCase& each : cases) {
    std::string shown;
    for (const RichTextParagraph& paragraph : ReadBody(each.body).paragraphs) {
      shown += paragraph.format.bullet ? "*" : "";
      for (const RichTextRun& run : paragraph.runs) shown += run.text;
      shown += '|';
    }
    EXPECT_EQ(shown, each.shown) << each.body;
  }
}

TEST(RichTextTest, ShowsOtherFilesAsPlainText) {
  const TextCase cases[] = {
      {"", ""},
      {"one\r\ntwo\rthree\n\nfour\n", "one\ntwo\nthree\n\nfour"},
      {"one\r", "one"},
      {"\xE0\x80\x80", "\uFFFD\uFFFD\uFFFD"},
      {"{\\rt not it}", "{\\rt not it}"},
      {"\xEF\xBB\xBF"
       "café 😀",
       "café 😀"},
      {"\xE9\xC0\x80\xED\xA0\x80\xF5\xE2\x82", "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"a\0b\tc"s, "ab\tc"}};
  for (const TextCase& each : cases) EXPECT_EQ(ReadRichText(each.body).PlainText(), each.shown) << each.body;
  EXPECT_EQ(ReadRichText("\xEF\xBB\xBF{\\rtf1 x}").PlainText(), "x");
}

TEST(RichTextTest, CountsAndCutsCharacters) {
  const std::string text = "aé\n😀z";
  const std::size_t all = std::numeric_limits<std::size_t>::max();
  EXPECT_EQ(CharacterCount(text), 5u);
  EXPECT_EQ(CharacterCount("\xE2\x82\x61\xFF"), 4u);
  EXPECT_EQ(CharacterSlice(text, 1, 3), "é\n😀");
  EXPECT_EQ(CharacterSlice(text, 3, all), "😀z");
  EXPECT_EQ(CharacterSlice(text, 5, 1), "");
  EXPECT_EQ(CharacterSlice(text, all, all), "");
  EXPECT_EQ(CharacterSlice("a\xF0\x9F", 2, 5), "\x9F");
}

TEST(RichTextTest, SavesTheTextOfDamagedDocuments) {
  const TextCase cases[] = {
      {"{\\rtf1 a{\\b b", "ab"},
      {"{\\rtf1 a}}} b}\r\n", "a b"},
      {"{\\rtf1 a\\'4}b", "a4b"},
      {"{\\rtf1 a\\bin99 b}", "a"},
      {"{\\rtf1 a\\bin" + std::string(100, '9'), "a"},
      {"{\\rtf1 a\\li" + std::string(100, '9') + " b\\fs-" + std::string(100, '9') + " c}", "abc"},
      {"{\\rtf1 a\\" + std::string(1'000'000, 'q') + " b}", "ab"},
      {"{\\rtf1 a" + std::string(1'000'000, '{') + "b" + std::string(1'000'000, '}') + "c", "abc"},
      {"{\\rtf1 " + std::string(1'000, '{') + "{\\pict x}{\\fonttbl y}a", "a"}};
  for (const TextCase& each : cases) EXPECT_EQ(ReadRichText(each.body).PlainText(), each.shown);
}

TEST(RichTextTest, StaysWithinItsLimits) {
  const RichText paragraphs = ReadBody(Repeated("a\\par ", 6 * richTextMaxParagraphs + 60));
  EXPECT_EQ(paragraphs.paragraphs.size(), richTextMaxParagraphs);
  EXPECT_EQ(paragraphs.PlainText().size(), 2 * richTextMaxParagraphs + 20);
  const RichText runs = ReadBody(Repeated("\\b a\\b0 b", 5 * richTextMaxRuns));
  EXPECT_EQ(runs.paragraphs.at(0).runs.size(), richTextMaxRuns);
  EXPECT_GT(runs.PlainText().size(), richTextMaxRuns);
  std::string tables = "{\\fonttbl";
  for (int i = 0; i < 5000; ++i) tables += "{\\f" + std::to_string(i) + " F" + std::to_string(i) + ";}";
  tables += "}{\\colortbl" + Repeated("\\red1;", 60'000) + "}\\f4999\\cf9999";
  for (int i = 1; i < 500; ++i) tables += "\\tx" + std::to_string(i);
  const RichText full = ReadBody(tables + " x");
  ASSERT_EQ(FaultOf(full), "");
  EXPECT_EQ(full.fonts.size(), richTextMaxFonts + 1);
  EXPECT_EQ(full.paragraphs.at(0).format.tabs.size(), richTextMaxTabs);

  EXPECT_LT(ReadBody(std::string(richTextMaxInput, 'x')).PlainText().size(), richTextMaxInput);
}

const std::string complete =
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}{\\f1 Symbol;}}{\\colortbl;\\red9\\green8\\blue7;}"
    "{\\*\\generator W;}\\pard\\qc\\tqr\\tx90 Caf\\'e9 \\b1 x\\b0\\super 2\\par\\pard{\\pntext\\f1\\'B7\\tab}"
    "{\\*\\pn\\pnlvlblt{\\pntxtb\\'B7}}\\fi-200\\li200\\cf1 \\u945?\\u-10179?\\u-8704?\\line y\\par"
    "{\\pict\\bin3 {}{00}a\\cell b\\cell\\row \\{z\\}}";

TEST(RichTextTest, ReadsEveryBeginningAndEveryDamagedByteOfADocument) {
  const std::string whole = ReadRichText(complete).PlainText();
  ASSERT_EQ(whole, "Café x2\nα😀\ny\na\tb\n{z}");
  std::string damaged = complete;
  for (std::size_t at = 0; at < complete.size(); ++at) {
    const RichText document = ReadRichText(complete.substr(0, at));
    ASSERT_EQ(FaultOf(document), "");
    // Only the last two characters may differ, where the cut went through an escape or surrogate pair.
    const std::string shown = document.PlainText();
    const std::size_t certain = std::max<std::size_t>(CharacterCount(shown), 2) - 2;
    EXPECT_TRUE(at < 5 || whole.starts_with(CharacterSlice(shown, 0, certain))) << at << ": " << shown;
    for (int value = 0; value < 256; ++value) {
      damaged[at] = static_cast<char>(value);
      ASSERT_EQ(FaultOf(ReadRichText(damaged)), "");
    }
    damaged[at] = complete[at];
  }
}

}  // namespace
}  // namespace quintara
