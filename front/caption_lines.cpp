#include "front/caption_lines.h"

#include <algorithm>

namespace quintara {
namespace {

std::size_t EndOfBlanks(std::string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(' ', at), text.size());
}

std::size_t EndOfWord(std::string_view text, std::size_t at) {
  return std::min(text.find(' ', at), text.size());
}

// One paragraph, broken into lines from its start.
class Breaker {
 public:
  Breaker(std::string_view text, const TextMeasure& measure, double width)
      : text_(text), measure_(measure), width_(width) {}

  void AddLinesTo(std::vector<std::string>& lines) {
    do {
      lines.emplace_back(NextLine());
    } while (start_ < text_.size());
  }

 private:
  bool Fits(std::size_t end) const { return measure_(text_.substr(start_, end - start_)) <= width_; }

  // The end of the next word, with the blanks before it and, if it is the last one, those behind it.
  std::size_t EndOfNext(std::size_t at) const {
    const std::size_t end = EndOfWord(text_, EndOfBlanks(text_, at));
    return EndOfBlanks(text_, end) == text_.size() ? text_.size() : end;
  }

  std::string_view NextLine() {
    if (!Fits(EndOfWord(text_, EndOfBlanks(text_, start_)))) start_ = EndOfBlanks(text_, start_);
    std::size_t end = EndOfNext(start_);
    while (end < text_.size() && Fits(EndOfWord(text_, EndOfBlanks(text_, end)))) end = EndOfNext(end);
    end = EndAtMeantBreak(end);
    const std::string_view line = text_.substr(start_, end - start_);
    while (end < text_.size() && text_[end] == ' ' && Fits(end + 1)) ++end;
    start_ = end;
    return line;
  }

  // Captions were written for letters of certain widths: a run of blanks far to the right stands for a break.
  // Where other letters leave room for a word behind it, the line ends at the run all the same.
  std::size_t EndAtMeantBreak(std::size_t end) const {
    constexpr std::string_view run = "   ";
    constexpr double farRight = 0.6;  // of the width
    const std::size_t blanks = text_.substr(0, end).rfind(run);
    if (blanks == std::string_view::npos || blanks < start_ || EndOfBlanks(text_, blanks) >= end) return end;
    const std::size_t wordEnd = text_.find_last_not_of(' ', blanks) + 1;
    const bool isFarRight = measure_(text_.substr(start_, wordEnd - start_)) > farRight * width_;
    return wordEnd > start_ && isFarRight ? wordEnd : end;
  }

  std::string_view text_;
  const TextMeasure& measure_;
  double width_;
  std::size_t start_ = 0;
};

bool HasRoom(const std::vector<std::string>& lines, const TextMeasure& measure, double lineHeight,
             double width, double height) {
  constexpr double partOfLineThatMayBeCut = 0.4;
  const auto linesShown =
      static_cast<std::size_t>(std::max(height / lineHeight + partOfLineThatMayBeCut, 1.0));
  const auto isTooWide = [&](std::string_view line) {
    return measure(line.substr(0, line.find_last_not_of(' ') + 1)) > width;
  };
  return lines.size() <= linesShown && std::none_of(lines.begin(), lines.end(), isTooWide);
}

}  // namespace

std::vector<std::string> CaptionLines(std::string_view caption, const TextMeasure& measure, double width) {
  std::string text(caption);
  std::erase(text, '\r');
  std::vector<std::string> lines;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    Breaker(std::string_view(text).substr(start, end - start), measure, width).AddLinesTo(lines);
    start = end + 1;
  }
  return lines;
}

// To look a font up takes long, so a wider room is tried instead of tighter letters.
FittedCaption FitCaption(std::string_view caption, const TextMeasure& measure, double lineHeight,
                         double width, double height) {
  FittedCaption natural{CaptionLines(caption, measure, width)};
  if (HasRoom(natural.lines, measure, lineHeight, width, height)) return natural;
  for (const int stretch : {97, 94, 91, 88, 85}) {
    const double wider = width * 100 / stretch;
    FittedCaption fitted{CaptionLines(caption, measure, wider), stretch};
    if (HasRoom(fitted.lines, measure, lineHeight, wider, height)) return fitted;
  }
  return natural;
}

}  // namespace quintara
