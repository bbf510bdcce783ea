#include "desktop/rich_document.h"

#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>

#include <string>
#include <vector>

namespace quintara::desktop {
namespace {

// Where a line of text shows ink, from the left, in pixels: the first column of each of its words.
std::vector<int> WordStarts(const std::string& rtf, double factor = 1) {
  QTextDocument document;
  document.setDocumentMargin(0);
  document.setTextWidth(400 * factor);
  FillDocument(document, ReadRichText("{\\rtf1{\\fonttbl{\\f0 Arial;}}" + rtf + "}"), Zoom(factor));
  QImage image(static_cast<int>(400 * factor), static_cast<int>(60 * factor), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  document.drawContents(&painter);
  std::vector<int> starts;
  const int wordGap = static_cast<int>(5 * factor);
  int blank = wordGap;
  for (int x = 0; x < image.width(); ++x) {
    bool ink = false;
    for (int y = 0; y < image.height(); ++y) ink = ink || qGray(image.pixel(x, y)) < 160;
    if (ink && blank >= wordGap) starts.push_back(x);
    blank = ink ? 0 : blank + 1;
  }
  return starts;
}

void ExpectStarts(const std::string& rtf, const std::vector<int>& expected, double factor = 1) {
  const std::vector<int> starts = WordStarts(rtf, factor);
  ASSERT_EQ(starts.size(), expected.size()) << rtf;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(starts[i], expected[i] * factor, 2 * factor) << rtf << ", word " << i;
  }
}

// 600 twips are 40 pixels.
TEST(RichDocumentTest, TheLeftIndentOfAHangingParagraphIsATabStop) {
  ExpectStarts("\\fi-450\\li600\\fs20 1\\tab H", {10, 40});
  ExpectStarts("\\fi-450\\li600\\fs20 1\\tab H", {10, 40}, 1.5);
  ExpectStarts("\\fi-450\\li600\\tx900\\fs20 1\\tab H\\tab H", {10, 40, 60});
  ExpectStarts("\\fi-600\\li750\\tx450\\fs20 1\\tab H\\tab H", {10, 30, 50});
  ExpectStarts("\\fi150\\li600\\tx1050\\fs20 1\\tab H", {50, 70});
}

TEST(RichDocumentTest, ABulletStandsWhereTheFirstLineBegins) {
  const std::string bullet = "{\\pntext\\bullet\\tab}";
  ExpectStarts(bullet + "\\fi-300\\li600\\fs20 H", {20, 40});
  ExpectStarts(bullet + "\\fi-300\\li600\\fs20 H", {20, 40}, 2);
  ExpectStarts(bullet + "\\fi-450\\li600\\fs36 H", {10, 40});
}

}  // namespace
}  // namespace quintara::desktop
