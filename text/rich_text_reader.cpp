#include "text/rich_text_reader.h"

#include <algorithm>
#include <utility>

#include "text/utf8.h"
#include "text/windows_1252.h"

namespace quintara {

namespace {

// Groups whose state is kept. Real documents nest a dozen deep.
constexpr std::size_t maxDepth = 256;
// Bytes of a font name or label; real ones are far shorter.
constexpr std::size_t maxName = 64;

// Text without the blanks and tabs around it.
std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool IsAlphanumeric(char32_t c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Whether a paragraph's label is a bullet rather than a number. Word processors also make bullets of a plain
// "o" and of the letters that are pictures in Symbol and Wingdings.
bool IsBullet(std::string_view label, std::string_view font) {
  std::size_t end = 0;
  const char32_t first = ReadUtf8(label, end);
  if (end != label.size()) return false;
  const bool pictures = font.starts_with("Symbol") || font.starts_with("Wingdings");
  return !IsAlphanumeric(first) || first == 'o' || pictures;
}

}  // namespace

RichText RichTextReader::Read() {
  for (RichTextToken token = tokens_.Next(); token.kind != RichTextToken::Kind::End; token = tokens_.Next()) {
    const bool inSkipped = skippedDepth_ != 0;
    switch (token.kind) {
      case RichTextToken::Kind::GroupStart: StartGroup(); break;
      case RichTextToken::Kind::GroupEnd: EndGroup(); break;
      case RichTextToken::Kind::Word:
        if (!inSkipped) TakeWord(token);
        break;
      case RichTextToken::Kind::Symbol:
        if (!inSkipped) TakeSymbol(static_cast<char>(token.byte));
        break;
      case RichTextToken::Kind::Byte:
        if (!inSkipped) PutUnlessFallback(WesternCharacter(token.byte));
        break;
      case RichTextToken::Kind::End: break;
    }
  }
  PutLoneSurrogate();
  RichText document = builder_.Finish(TakeFormat());
  document.fonts = std::move(fonts_);
  document.defaultTabs = defaultTabs_;
  return document;
}

void RichTextReader::StartGroup() {
  ++depth_;
  starred_ = false;
  fallbackLeft_ = 0;
  if (skippedDepth_ == 0 && depth_ <= maxDepth) outer_.push_back(state_);
}

void RichTextReader::EndGroup() {
  // Text behind the end of the document means that a brace too many ended it early, so it goes on.
  if (depth_ <= 1) return;
  starred_ = false;
  fallbackLeft_ = 0;
  const std::size_t ended = depth_--;
  if (skippedDepth_ != 0 && ended > skippedDepth_) return;
  skippedDepth_ = 0;
  if (ended > maxDepth) return;
  const Destination left = state_.destination;
  state_ = std::move(outer_.back());
  outer_.pop_back();
  LeaveDestination(left);
}

void RichTextReader::StartDestination(Destination destination) {
  // The outermost group is the document itself, which a stray word must not make vanish.
  if (depth_ <= 1) return;
  if (destination == Destination::Skipped || depth_ > maxDepth) {
    skippedDepth_ = depth_;
    return;
  }
  state_.destination = destination;
  if (destination == Destination::Label) label_.clear();
  if (destination == Destination::Numbering) bulletsFound_ = false;
}

void RichTextReader::LeaveDestination(Destination left) {
  if (left == state_.destination) return;
  if (left == Destination::FontTable) {
    EndFont();
    state_.look.font = FontIndex(defaultFont_);
  }
  if (left == Destination::Label) EndLabel();
  if (left == Destination::Numbering && bulletsFound_) state_.format.bullet = true;
}

void RichTextReader::TakeWord(const RichTextToken& token) {
  const bool starred = std::exchange(starred_, false);
  const auto found = KnownWords().find(token.word);
  const Meaning* meaning = found == KnownWords().end() ? nullptr : &found->second;
  const auto* destination = meaning ? std::get_if<Destination>(meaning) : nullptr;
  if (destination != nullptr) {
    StartDestination(*destination);
  } else if (starred) {
    StartDestination(Destination::Skipped);
  } else if (meaning == nullptr) {
    return;
  } else if (const auto* character = std::get_if<char32_t>(meaning)) {
    PutUnlessFallback(*character);
  } else {
    const auto act = std::get<Action>(*meaning);
    act(*this, token.number);
  }
}

void RichTextReader::TakeSymbol(char symbol) {
  switch (symbol) {
    case '*': starred_ = true; break;
    case '\r':
    case '\n': EndParagraph(); break;
    case '~': PutUnlessFallback(0xA0); break;    // blank that keeps its words together
    case '-': PutUnlessFallback(0xAD); break;    // hyphen shown only where a line breaks
    case '_': PutUnlessFallback(0x2011); break;  // hyphen where no line breaks
    case '\t':
    case '\\':
    case '{':
    case '}': PutUnlessFallback(static_cast<unsigned char>(symbol)); break;
    default: break;
  }
}

// Only what would be shown counts as fallback. Other words take effect, for a writer that left the fallback
// out should lose a letter at most, not a change of look.
void RichTextReader::PutUnlessFallback(char32_t character) {
  if (fallbackLeft_ > 0) {
    --fallbackLeft_;
  } else {
    Put(character);
  }
}

// Takes the number of a \u: a UTF-16 unit, negative above 0x7FFF, or from some writers a whole character.
void RichTextReader::PutCodeUnit(int unit) {
  const auto value = static_cast<char32_t>(unit < 0 ? unit + 0x10000 : unit);
  if (IsHighSurrogate(value)) {
    PutLoneSurrogate();
    highSurrogate_ = value;
  } else if (IsLowSurrogate(value) && highSurrogate_ != 0) {
    const char32_t high = std::exchange(highSurrogate_, 0);
    Put(0x10000 + ((high & 0x3FF) << 10 | (value & 0x3FF)));
  } else {
    Put(value);
  }
  fallbackLeft_ = state_.fallbackLength;
}

void RichTextReader::Put(char32_t character) {
  PutLoneSurrogate();
  PutHere(character);
}

// Shows that a first half of a character came without its second.
void RichTextReader::PutLoneSurrogate() {
  if (highSurrogate_ != 0) PutHere(std::exchange(highSurrogate_, 0));
}

void RichTextReader::PutHere(char32_t character) {
  switch (state_.destination) {
    case Destination::Text:
      if (state_.hidden) return;
      if (std::exchange(cellEnded_, false)) builder_.Put('\t', state_.look);
      builder_.Put(character, state_.look);
      break;
    case Destination::FontTable:
      if (character == ';') {
        EndFont();
      } else if (fontName_.size() < maxName) {
        AppendUtf8(fontName_, character);
      }
      break;
    case Destination::ColourTable:
      if (character == ';') EndColour();
      break;
    case Destination::Label:
      if (label_.size() < maxName) AppendUtf8(label_, character);
      if (character != '\t') labelFont_ = state_.look.font;
      break;
    case Destination::Numbering:
    case Destination::Skipped: break;
  }
}

void RichTextReader::EndParagraph() {
  if (state_.destination != Destination::Text) return;
  fallbackLeft_ = 0;
  PutLoneSurrogate();
  if (std::exchange(cellEnded_, false)) builder_.Put('\t', state_.look);
  builder_.EndParagraph(TakeFormat());
}

// The format of the current paragraph, which ends: a label is for one paragraph only.
RichTextFormat RichTextReader::TakeFormat() {
  RichTextFormat format = state_.format;
  if (std::exchange(labelIsBullet_, false)) format.bullet = true;
  return format;
}

// The tab comes with the next text, so that a row has tabs between its cells and none behind the last.
void RichTextReader::EndCell() {
  if (state_.destination != Destination::Text) return;
  fallbackLeft_ = 0;
  if (std::exchange(cellEnded_, false)) builder_.Put('\t', state_.look);
  cellEnded_ = true;
}

void RichTextReader::EndRow() {
  if (state_.destination != Destination::Text) return;
  cellEnded_ = false;
  EndParagraph();
}

// A number is shown as text, for only the document knows how it counts; a bullet is left to the viewer.
void RichTextReader::EndLabel() {
  const std::string_view shown = Trimmed(label_);
  if (shown.empty()) return;
  if (IsBullet(shown, fonts_[labelFont_])) {
    labelIsBullet_ = true;
    return;
  }
  for (std::size_t position = 0; position < label_.size();) Put(ReadUtf8(label_, position));
}

void RichTextReader::ChooseFont(int number) {
  if (state_.destination == Destination::FontTable) {
    EndFont();
    fontNumber_ = number;
  } else {
    state_.look.font = FontIndex(number);
  }
}

// Files the font just defined. Fonts of one name are one, so that they make one look.
void RichTextReader::EndFont() {
  const Number number = std::exchange(fontNumber_, std::nullopt);
  const std::string name(Trimmed(std::exchange(fontName_, {})));
  if (!number || name.empty() || fontIndices_.size() >= richTextMaxFonts) return;
  const auto [entry, isNew] = fontIndices_.try_emplace(*number);
  if (!isNew) return;
  const auto same = std::find(fonts_.begin(), fonts_.end(), name);
  entry->second = static_cast<std::uint16_t>(same - fonts_.begin());
  if (same == fonts_.end()) fonts_.push_back(name);
}

std::uint16_t RichTextReader::FontIndex(int number) const {
  const auto found = fontIndices_.find(number);
  return found == fontIndices_.end() ? std::uint16_t{0} : found->second;
}

void RichTextReader::ResetLook() {
  state_.look = {};
  state_.look.font = FontIndex(defaultFont_);
  state_.hidden = false;
}

void RichTextReader::SetColourPart(int shift, Number value) {
  const auto part = static_cast<std::uint32_t>(std::clamp(value.value_or(0), 0, 255));
  colour_ = (colour_.value_or(0) & ~(std::uint32_t{0xFF} << shift)) | part << shift;
}

// A colour without parts is the viewer's own.
void RichTextReader::EndColour() {
  if (colours_.size() < richTextMaxColours) colours_.push_back(colour_);
  colour_.reset();
}

void RichTextReader::ChooseColour(int number) {
  const bool known = number >= 0 && static_cast<std::size_t>(number) < colours_.size();
  state_.look.colour = known ? colours_[static_cast<std::size_t>(number)] : std::nullopt;
}

void RichTextReader::AddTab(int position) {
  const RichTextTabKind kind = std::exchange(state_.nextTab, RichTextTabKind::Left);
  std::vector<RichTextTab>& tabs = state_.format.tabs;
  if (position <= 0 || tabs.size() >= richTextMaxTabs) return;
  const auto place = std::lower_bound(tabs.begin(), tabs.end(), position,
                                      [](const RichTextTab& tab, int at) { return tab.position < at; });
  if (place != tabs.end() && place->position == position) {
    place->kind = kind;
  } else {
    tabs.insert(place, {position, kind});
  }
}

}  // namespace quintara
