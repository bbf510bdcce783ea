#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quintara {

// How far into a document the reader looks, in bytes. What lies beyond is not shown.
inline constexpr std::size_t richTextMaxInput = std::size_t{16} << 20;
// More paragraphs than this are shown as lines of the last one.
inline constexpr std::size_t richTextMaxParagraphs = std::size_t{1} << 18;
// After this many runs a paragraph keeps the look it has; only a new paragraph still starts a run.
inline constexpr std::size_t richTextMaxRuns = std::size_t{1} << 19;
// Tab stops of one paragraph; further ones are dropped.
inline constexpr std::size_t richTextMaxTabs = 32;
// Fonts of a document; text in further ones is shown in the viewer's own font.
inline constexpr std::size_t richTextMaxFonts = 1024;
// Colours of a document; text in further ones is shown in the default colour.
inline constexpr std::size_t richTextMaxColours = 4096;
// Largest indent, space or tab position to either side of zero, in twips: 22 inches, the largest page.
inline constexpr int richTextMaxTwips = 31680;
// Largest letter size, in half points.
inline constexpr int richTextMaxHalfPoints = 3276;

enum class RichTextRaise : std::uint8_t { None, Superscript, Subscript };
enum class RichTextAlignment : std::uint8_t { Left, Right, Centre, Justified };
enum class RichTextTabKind : std::uint8_t { Left, Right, Centre, Decimal };

// What the letters of a run look like.
struct RichTextLook {
  std::uint16_t font = 0;         // index in RichText::fonts, always within it
  std::uint16_t halfPoints = 24;  // letter size, 2 to richTextMaxHalfPoints; 24 is 12 points
  bool bold = false;
  bool italic = false;
  bool underline = false;
  RichTextRaise raise = RichTextRaise::None;
  std::optional<std::uint32_t> colour;  // 0x00BBGGRR; nullopt is the viewer's text colour

  bool operator==(const RichTextLook&) const = default;
};

// A stretch of text in one look. Neighbouring runs of a paragraph differ in look.
struct RichTextRun {
  std::string text;  // valid UTF-8, never empty; '\t' is a tab, '\n' a line break within the paragraph
  RichTextLook look;
};

// A place where a tab character takes the text.
struct RichTextTab {
  std::int32_t position = 0;  // twips from the left edge of the text area, 1 to richTextMaxTwips
  RichTextTabKind kind = RichTextTabKind::Left;
};

// How a paragraph is laid out. Lengths are in twips (1/1440 inch).
struct RichTextFormat {
  RichTextAlignment alignment = RichTextAlignment::Left;
  bool bullet = false;            // the viewer draws a bullet before the first line; the text has none
  int leftIndent = 0;             // from the left edge of the text area; negative lies outside it
  int rightIndent = 0;            // from the right edge of the text area; negative lies outside it
  int firstLineIndent = 0;        // added to leftIndent for the first line; negative hangs out to the left
  int spaceBefore = 0;            // never negative
  int spaceAfter = 0;             // never negative
  std::vector<RichTextTab> tabs;  // by rising position, no two at the same one
};

struct RichTextParagraph {
  std::vector<RichTextRun> runs;  // empty for an empty line
  RichTextFormat format;
};

// A document as it is shown.
struct RichText {
  std::vector<RichTextParagraph> paragraphs;  // empty for an empty document
  std::vector<std::string> fonts{""};         // UTF-8 names; the first, nameless, is the viewer's own font
  int defaultTabs = 720;  // twips between the tab stops past a paragraph's own, 1 to richTextMaxTwips

  // The text alone, as UTF-8, with a '\n' between paragraphs and at line breaks. Bullets are not part of it;
  // the numbers of a numbered list are.
  std::string PlainText() const;
};

// Reads a document, as RTF if it begins so (a UTF-8 byte order mark may come first) and else as plain text in
// UTF-8 whose line ends part the paragraphs. Every input gives a result: what is damaged, unknown or beyond
// the limits above is passed over. The paragraph end that closes the last paragraph starts no further one.
RichText ReadRichText(std::string_view rtf);

}  // namespace quintara
