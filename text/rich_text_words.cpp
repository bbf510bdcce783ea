// The words that the reader knows. All others have no effect.

#include <algorithm>
#include <utility>

#include "text/rich_text_reader.h"

namespace quintara {

namespace {

bool IsOn(std::optional<int> number) {
  return number.value_or(1) != 0;
}

int Twips(std::optional<int> number) {
  return std::clamp(number.value_or(0), -richTextMaxTwips, richTextMaxTwips);
}

int PositiveTwips(std::optional<int> number) {
  return std::max(0, Twips(number));
}

}  // namespace

const RichTextReader::Words& RichTextReader::KnownWords() {
  static const Words words = [] {
    Words all;
    AddCharacters(all);
    AddDestinations(all);
    AddLookWords(all);
    AddFormatWords(all);
    AddDocumentWords(all);
    return all;
  }();
  return words;
}

void RichTextReader::AddCharacters(Words& words) {
  constexpr std::pair<std::string_view, char32_t> characters[] = {
      {"tab", '\t'},         {"line", '\n'},        {"lbr", '\n'},       {"emdash", 0x2014},
      {"endash", 0x2013},    {"bullet", 0x2022},    {"lquote", 0x2018},  {"rquote", 0x2019},
      {"ldblquote", 0x201C}, {"rdblquote", 0x201D}, {"emspace", 0x2003}, {"enspace", 0x2002},
      {"qmspace", 0x2005}};
  for (const auto& [word, character] : characters) words.emplace(word, character);
}

void RichTextReader::AddDestinations(Words& words) {
  words.emplace("fonttbl", Destination::FontTable);
  words.emplace("colortbl", Destination::ColourTable);
  words.emplace("pn", Destination::Numbering);
  words.emplace("pntext", Destination::Label);
  words.emplace("listtext", Destination::Label);
  // Those marked by \* are skipped without being known; these may come without the mark.
  constexpr std::string_view skipped[] = {
      "aftnsep",      "aftnsepc", "annotation", "bkmkend",   "bkmkstart",  "comment", "falt",
      "filetbl",      "fldinst",  "fontemb",    "footer",    "footerf",    "footerl", "footerr",
      "footnote",     "ftnsep",   "ftnsepc",    "generator", "header",     "headerf", "headerl",
      "headerr",      "info",     "nonshppict", "object",    "panose",     "pict",    "private",
      "nonesttables", "revtbl",   "rxe",        "shpinst",   "stylesheet", "tc",      "template",
      "txe",          "xe"};
  for (const std::string_view word : skipped) words.emplace(word, Destination::Skipped);
}

void RichTextReader::AddLookWords(Words& words) {
  const auto add = [&words](std::string_view word, Action action) { words.emplace(word, action); };
  add("plain", [](RichTextReader& r, Number) { r.ResetLook(); });
  add("f", [](RichTextReader& r, Number n) { r.ChooseFont(n.value_or(0)); });
  add("fs", [](RichTextReader& r, Number n) {
    const int size = std::clamp(n.value_or(24), 2, richTextMaxHalfPoints);
    r.state_.look.halfPoints = static_cast<std::uint16_t>(size);
  });
  add("b", [](RichTextReader& r, Number n) { r.state_.look.bold = IsOn(n); });
  add("i", [](RichTextReader& r, Number n) { r.state_.look.italic = IsOn(n); });
  for (const std::string_view word : {"ul", "uld", "uldash", "uldb", "ulth", "ulw", "ulwave"}) {
    add(word, [](RichTextReader& r, Number n) { r.state_.look.underline = IsOn(n); });
  }
  add("ulnone", [](RichTextReader& r, Number) { r.state_.look.underline = false; });
  for (const std::string_view word : {"super", "up"}) {
    add(word, [](RichTextReader& r, Number n) {
      r.state_.look.raise = IsOn(n) ? RichTextRaise::Superscript : RichTextRaise::None;
    });
  }
  for (const std::string_view word : {"sub", "dn"}) {
    add(word, [](RichTextReader& r, Number n) {
      r.state_.look.raise = IsOn(n) ? RichTextRaise::Subscript : RichTextRaise::None;
    });
  }
  add("nosupersub", [](RichTextReader& r, Number) { r.state_.look.raise = RichTextRaise::None; });
  add("cf", [](RichTextReader& r, Number n) { r.ChooseColour(n.value_or(0)); });
  add("v", [](RichTextReader& r, Number n) { r.state_.hidden = IsOn(n); });
}

void RichTextReader::AddFormatWords(Words& words) {
  const auto add = [&words](std::string_view word, Action action) { words.emplace(word, action); };
  add("pard", [](RichTextReader& r, Number) {
    r.state_.format = {};
    r.state_.nextTab = RichTextTabKind::Left;
  });
  add("ql", [](RichTextReader& r, Number) { r.state_.format.alignment = RichTextAlignment::Left; });
  add("qr", [](RichTextReader& r, Number) { r.state_.format.alignment = RichTextAlignment::Right; });
  add("qc", [](RichTextReader& r, Number) { r.state_.format.alignment = RichTextAlignment::Centre; });
  add("qj", [](RichTextReader& r, Number) { r.state_.format.alignment = RichTextAlignment::Justified; });
  add("li", [](RichTextReader& r, Number n) { r.state_.format.leftIndent = Twips(n); });
  add("ri", [](RichTextReader& r, Number n) { r.state_.format.rightIndent = Twips(n); });
  add("fi", [](RichTextReader& r, Number n) { r.state_.format.firstLineIndent = Twips(n); });
  add("sb", [](RichTextReader& r, Number n) { r.state_.format.spaceBefore = PositiveTwips(n); });
  add("sa", [](RichTextReader& r, Number n) { r.state_.format.spaceAfter = PositiveTwips(n); });
  add("tqr", [](RichTextReader& r, Number) { r.state_.nextTab = RichTextTabKind::Right; });
  add("tqc", [](RichTextReader& r, Number) { r.state_.nextTab = RichTextTabKind::Centre; });
  add("tqdec", [](RichTextReader& r, Number) { r.state_.nextTab = RichTextTabKind::Decimal; });
  add("tx", [](RichTextReader& r, Number n) { r.AddTab(Twips(n)); });
  add("pnlvlblt", [](RichTextReader& r, Number) { r.bulletsFound_ = true; });
}

void RichTextReader::AddDocumentWords(Words& words) {
  const auto add = [&words](std::string_view word, Action action) { words.emplace(word, action); };
  add("par", [](RichTextReader& r, Number) { r.EndParagraph(); });
  for (const std::string_view word : {"sect", "page", "column"}) {
    add(word, [](RichTextReader& r, Number) {
      if (r.builder_.HasText()) r.EndParagraph();
    });
  }
  for (const std::string_view word : {"cell", "nestcell"}) {
    add(word, [](RichTextReader& r, Number) { r.EndCell(); });
  }
  for (const std::string_view word : {"row", "nestrow"}) {
    add(word, [](RichTextReader& r, Number) { r.EndRow(); });
  }
  add("u", [](RichTextReader& r, Number n) {
    if (n) r.PutCodeUnit(*n);
  });
  add("uc", [](RichTextReader& r, Number n) { r.state_.fallbackLength = std::clamp(n.value_or(1), 0, 255); });
  add("deff", [](RichTextReader& r, Number n) { r.defaultFont_ = n.value_or(0); });
  add("deftab", [](RichTextReader& r, Number n) {
    if (n.value_or(0) > 0) r.defaultTabs_ = Twips(n);
  });
  add("red", [](RichTextReader& r, Number n) { r.SetColourPart(0, n); });
  add("green", [](RichTextReader& r, Number n) { r.SetColourPart(8, n); });
  add("blue", [](RichTextReader& r, Number n) { r.SetColourPart(16, n); });
}

}  // namespace quintara
