#include "desktop/rich_document.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QTextBlockFormat>
#include <QtGui/QTextCharFormat>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextListFormat>
#include <QtGui/QTextOption>

#include <algorithm>
#include <vector>

#include "desktop/appearance.h"
#include "desktop/units.h"

namespace quintara::desktop {
namespace {

QTextCharFormat FormatOf(const RichTextLook& look, const RichText& text, const Zoom& zoom) {
  QTextCharFormat format;
  const std::string& font = text.fonts[look.font];
  format.setFontFamilies({font.empty() ? ToQString(Font{}.name) : ToQString(font)});
  format.setProperty(QTextFormat::FontPixelSize, zoom(ToPixelSize(look.halfPoints / 2.0)));
  format.setFontWeight(ToQWeight(WeightOf(font, look.bold)));
  format.setFontItalic(look.italic);
  format.setFontUnderline(look.underline);
  if (look.colour) format.setForeground(ToQColor(Colour(*look.colour)));
  if (look.raise == RichTextRaise::Superscript)
    format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
  if (look.raise == RichTextRaise::Subscript) format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
  return format;
}

Qt::Alignment AlignmentOf(RichTextAlignment alignment) {
  switch (alignment) {
    case RichTextAlignment::Right: return Qt::AlignRight;
    case RichTextAlignment::Centre: return Qt::AlignHCenter;
    case RichTextAlignment::Justified: return Qt::AlignJustify;
    case RichTextAlignment::Left: break;
  }
  return Qt::AlignLeft;
}

QTextOption::TabType TabTypeOf(RichTextTabKind kind) {
  switch (kind) {
    case RichTextTabKind::Right: return QTextOption::RightTab;
    case RichTextTabKind::Centre: return QTextOption::CenterTab;
    case RichTextTabKind::Decimal: return QTextOption::DelimiterTab;
    case RichTextTabKind::Left: break;
  }
  return QTextOption::LeftTab;
}

// A hanging paragraph has one stop more than it lists: the left indent takes what follows a label to where
// the next lines begin.
std::vector<RichTextTab> StopsOf(const RichTextFormat& paragraph) {
  std::vector<RichTextTab> stops = paragraph.tabs;
  if (paragraph.firstLineIndent >= 0) return stops;
  const auto after = std::find_if(stops.begin(), stops.end(), [&paragraph](const RichTextTab& tab) {
    return tab.position >= paragraph.leftIndent;
  });
  if (after == stops.end() || after->position != paragraph.leftIndent) {
    stops.insert(after, {.position = paragraph.leftIndent});
  }
  return stops;
}

QTextBlockFormat FormatOf(const RichTextFormat& paragraph, const Zoom& zoom) {
  const auto shown = [&zoom](double twips) { return zoom(ToPixels(twips)); };
  QTextBlockFormat format;
  format.setAlignment(AlignmentOf(paragraph.alignment));
  format.setLeftMargin(shown(paragraph.leftIndent));
  format.setRightMargin(shown(paragraph.rightIndent));
  const int firstLineIndent = paragraph.bullet ? 0 : paragraph.firstLineIndent;
  format.setTextIndent(shown(firstLineIndent));
  format.setTopMargin(shown(paragraph.spaceBefore));
  format.setBottomMargin(shown(paragraph.spaceAfter));
  // Stops are counted from where the first line begins.
  const int start = paragraph.leftIndent + firstLineIndent;
  QList<QTextOption::Tab> tabs;
  for (const RichTextTab& tab : StopsOf(paragraph)) {
    if (tab.position > start) {
      tabs.append(QTextOption::Tab(shown(tab.position - start), TabTypeOf(tab.kind), '.'));
    }
  }
  format.setTabPositions(tabs);
  return format;
}

// A bullet is drawn one blank of its look to the left of the text: a blank of this breadth puts it where the
// first line of a hanging paragraph begins.
QTextCharFormat BulletFormat(const RichTextParagraph& paragraph, const RichText& text, const Zoom& zoom) {
  const RichTextLook look = paragraph.runs.empty() ? RichTextLook{} : paragraph.runs.front().look;
  QTextCharFormat format = FormatOf(look, text, zoom);
  const QFontMetrics metrics(format.font());
  const int bulletWidth = metrics.lineSpacing() / 3;
  const int hanging = zoom(ToPixels(-paragraph.format.firstLineIndent));
  const int blank = std::max(metrics.horizontalAdvance(' '), 1);
  constexpr int widest = 4000;
  format.setFontStretch(std::clamp((hanging - bulletWidth) * 100 / blank, 100, widest));
  return format;
}

void InsertParagraph(QTextCursor& cursor, const RichTextParagraph& paragraph, const RichText& text,
                     const Zoom& zoom) {
  cursor.setBlockFormat(FormatOf(paragraph.format, zoom));
  if (paragraph.format.bullet) {
    // The bullet stands out to the left of the indent that the paragraph has anyhow.
    QTextListFormat bullets;
    bullets.setStyle(QTextListFormat::ListDisc);
    bullets.setIndent(0);
    cursor.createList(bullets);
    cursor.setBlockCharFormat(BulletFormat(paragraph, text, zoom));
  }
  for (const RichTextRun& run : paragraph.runs) {
    QString letters = ToQString(run.text);
    cursor.insertText(letters.replace('\n', QChar(QChar::LineSeparator)), FormatOf(run.look, text, zoom));
  }
}

}  // namespace

void FillDocument(QTextDocument& document, const RichText& text, const Zoom& zoom) {
  document.setUndoRedoEnabled(false);
  document.clear();
  QTextOption option = document.defaultTextOption();
  option.setTabStopDistance(zoom(ToPixels(text.defaultTabs)));
  document.setDefaultTextOption(option);

  QTextCursor cursor(&document);
  cursor.beginEditBlock();
  for (const RichTextParagraph& paragraph : text.paragraphs) {
    if (&paragraph != &text.paragraphs.front()) cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    InsertParagraph(cursor, paragraph, text, zoom);
  }
  cursor.endEditBlock();
}

}  // namespace quintara::desktop
