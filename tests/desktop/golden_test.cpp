#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtGui/QImage>

#include <algorithm>
#include <cstdlib>

#include "desktop/tour_pictures.h"

// The pictures of the tour, compared with those in the folder golden/. With QUINTARA_RENEW_GOLDEN set in the
// environment they are stored there instead.

namespace quintara::desktop {
namespace {

const QString goldenFolder = PROJECT_FOLDER "/tests/desktop/golden";
constexpr int block = 12;  // pixels across
constexpr double mostOfBlock = 0.3, mostOfAll = 0.005;

struct Difference {
  double ofAll = 0;    // share of the pixels that differ
  double ofBlock = 0;  // the same in the block where most do
  QImage marked;       // the picture with those pixels in red
};

// Letters and slanting lines come out a little different on another machine.
bool Differ(QRgb a, QRgb b) {
  constexpr int tolerance = 48;
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b))}) > tolerance;
}

Difference Compare(const QImage& seen, const QImage& golden) {
  Difference difference{.marked = seen};
  int all = 0;
  for (int top = 0; top < seen.height(); top += block) {
    for (int left = 0; left < seen.width(); left += block) {
      int inBlock = 0;
      for (int y = top; y < std::min(top + block, seen.height()); ++y) {
        for (int x = left; x < std::min(left + block, seen.width()); ++x) {
          if (!Differ(seen.pixel(x, y), golden.pixel(x, y))) continue;
          ++inBlock;
          difference.marked.setPixel(x, y, qRgb(255, 0, 0));
        }
      }
      all += inBlock;
      difference.ofBlock = std::max(difference.ofBlock, double(inBlock) / (block * block));
    }
  }
  difference.ofAll = double(all) / (seen.width() * seen.height());
  return difference;
}

// Large windows are kept at half their size, so that the folder stays small.
QImage AsKept(const QImage& picture) {
  constexpr int large = 700;
  const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
  if (plain.width() <= large) return plain;
  return plain.scaled(plain.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .convertToFormat(QImage::Format_RGB32);
}

void CompareWithGolden(const QString& name, const QImage& seen) {
  const QString file = QString("/%1.png").arg(name);
  const QImage golden = QImage(goldenFolder + file).convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(seen.size(), golden.size()) << name.toStdString();
  if (seen.size() != golden.size()) return;
  const Difference difference = Compare(seen, golden);
  // What has gone or moved fills a block, other letters do not. Things as small as a shell are left to the
  // tests of painting.
  const bool alike = difference.ofAll < mostOfAll && difference.ofBlock < mostOfBlock;
  EXPECT_TRUE(alike) << name.toStdString() << ": " << difference.ofAll * 100 << "% of the pixels differ, "
                     << difference.ofBlock * 100 << "% in one place; see " << DIFFERENT;
  if (alike) return;
  QDir().mkpath(DIFFERENT);
  seen.save(QString(DIFFERENT "/%1-seen.png").arg(name));
  difference.marked.save(QString(DIFFERENT "/%1-marked.png").arg(name));
}

TEST(GoldenTest, EveryStageOfTheTourLooksAsItDid) {
  const bool renews = qEnvironmentVariableIsSet("QUINTARA_RENEW_GOLDEN");
  QStringList stages;
  TourPictures tour(PROJECT_FOLDER "/data", [&](const QString& name, const QImage& picture) {
    if (name.startsWith("screenshot")) return;
    stages << name + ".png";
    if (renews) {
      EXPECT_TRUE(AsKept(picture).save(goldenFolder + ('/' + name + ".png")));
    } else {
      CompareWithGolden(name, AsKept(picture));
    }
  });
  EXPECT_EQ(tour.Play(), "");
  stages.sort();
  EXPECT_EQ(stages, QDir(goldenFolder).entryList({"*.png"}, QDir::Files, QDir::Name)) << "a stage has gone";
}

}  // namespace
}  // namespace quintara::desktop
