#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "text/rich_text.h"
#include "text/rich_text_builder.h"
#include "text/rich_text_tokens.h"

namespace quintara {

// Reads one RTF document. Groups are kept on a stack of bounded height; those nested deeper are counted, and
// share the state of the deepest one kept.
class RichTextReader {
 public:
  // `rtf` must outlive the reader.
  explicit RichTextReader(std::string_view rtf) : tokens_(rtf) {}

  // Reads the whole document; to be called once.
  RichText Read();

 private:
  // Where the characters of a group go.
  enum class Destination {
    Text,         // the document
    FontTable,    // the name of a font
    ColourTable,  // only the ';' behind each colour counts
    Numbering,    // how paragraphs are numbered, which says whether they have bullets
    Label,        // the bullet or number of one paragraph, written out
    Skipped,      // nowhere
  };

  // What a group hands down to the groups in it, and gets back when they end.
  struct State {
    RichTextLook look;
    RichTextFormat format;
    Destination destination = Destination::Text;
    RichTextTabKind nextTab = RichTextTabKind::Left;
    int fallbackLength = 1;  // characters after \u for readers that do not know it
    bool hidden = false;
  };

  using Number = std::optional<int>;
  using Action = void (*)(RichTextReader&, Number);
  // A word stands for a character, begins a destination or acts on the reader.
  using Meaning = std::variant<char32_t, Destination, Action>;
  using Words = std::unordered_map<std::string_view, Meaning>;

  static const Words& KnownWords();
  static void AddCharacters(Words& words);
  static void AddDestinations(Words& words);
  static void AddLookWords(Words& words);
  static void AddFormatWords(Words& words);
  static void AddDocumentWords(Words& words);

  void StartGroup();
  void EndGroup();
  void StartDestination(Destination destination);
  void LeaveDestination(Destination left);
  void TakeWord(const RichTextToken& token);
  void TakeSymbol(char symbol);

  void PutUnlessFallback(char32_t character);
  void PutCodeUnit(int unit);
  void Put(char32_t character);
  void PutLoneSurrogate();
  void PutHere(char32_t character);
  void EndParagraph();
  RichTextFormat TakeFormat();
  void EndCell();
  void EndRow();
  void EndLabel();

  void ChooseFont(int number);
  void EndFont();
  std::uint16_t FontIndex(int number) const;
  void ResetLook();
  void SetColourPart(int shift, Number value);
  void EndColour();
  void ChooseColour(int number);
  void AddTab(int position);

  RichTextTokens tokens_;
  RichTextBuilder builder_;
  State state_;
  std::vector<State> outer_;      // the states of the groups around the current one, outermost first
  std::size_t depth_ = 0;         // groups open
  std::size_t skippedDepth_ = 0;  // the depth of the group that is being skipped, 0 for none

  bool starred_ = false;        // \* came just before
  int fallbackLeft_ = 0;        // characters still to be passed over after \u
  char32_t highSurrogate_ = 0;  // waits for its other half, 0 for none
  bool cellEnded_ = false;      // a tab is due before further text of the table row
  bool bulletsFound_ = false;   // the numbering being read is by bullets
  bool labelIsBullet_ = false;  // the current paragraph was labelled with a bullet
  std::string label_;
  std::uint16_t labelFont_ = 0;

  std::vector<std::string> fonts_{""};
  std::map<int, std::uint16_t> fontIndices_;  // by the number that the document gives a font
  Number fontNumber_;                         // of the font being defined
  std::string fontName_;
  int defaultFont_ = 0;
  std::vector<std::optional<std::uint32_t>> colours_;
  std::optional<std::uint32_t> colour_;  // the one being defined
  int defaultTabs_ = RichText{}.defaultTabs;
};

}  // namespace quintara
