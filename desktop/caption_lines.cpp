#include "desktop/caption_lines.h"

namespace quintara::desktop {
namespace {

qsizetype EndOfBlanks(const QString& text, qsizetype at) {
  while (at < text.size() && text[at] == ' ') ++at;
  return at;
}

qsizetype EndOfWord(const QString& text, qsizetype at) {
  const qsizetype blank = text.indexOf(' ', at);
  return blank < 0 ? text.size() : blank;
}

// One paragraph, broken into lines from its start.
class Breaker {
 public:
  Breaker(const QString& text, const QFontMetricsF& metrics, qreal width)
      : text_(text), metrics_(metrics), width_(width) {}

  QStringList Lines() {
    QStringList lines;
    do {
      lines.append(NextLine());
    } while (start_ < text_.size());
    return lines;
  }

 private:
  bool Fits(qsizetype end) const {
    return metrics_.horizontalAdvance(text_.mid(start_, end - start_)) <= width_;
  }

  // The end of the next word, with the blanks before it and, if it is the last one, those behind it.
  qsizetype EndOfNext(qsizetype at) const {
    const qsizetype end = EndOfWord(text_, EndOfBlanks(text_, at));
    return EndOfBlanks(text_, end) == text_.size() ? text_.size() : end;
  }

  QString NextLine() {
    if (!Fits(EndOfWord(text_, EndOfBlanks(text_, start_)))) start_ = EndOfBlanks(text_, start_);
    qsizetype end = EndOfNext(start_);
    while (end < text_.size() && Fits(EndOfWord(text_, EndOfBlanks(text_, end)))) end = EndOfNext(end);
    QString line = text_.mid(start_, end - start_);
    while (end < text_.size() && text_[end] == ' ' && Fits(end + 1)) ++end;
    start_ = end;
    return line;
  }

  const QString& text_;
  const QFontMetricsF& metrics_;
  qreal width_;
  qsizetype start_ = 0;
};

}  // namespace

QStringList CaptionLines(const QString& caption, const QFontMetricsF& metrics, qreal width) {
  QStringList lines;
  QString text = caption;
  for (const QString& paragraph : text.remove('\r').split('\n'))
    lines += Breaker(paragraph, metrics, width).Lines();
  return lines;
}

}  // namespace quintara::desktop
