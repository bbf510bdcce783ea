#include "desktop/tour_main.h"

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <cstdio>
#include <stdexcept>

#include "desktop/application.h"
#include "desktop/program_folders.h"
#include "desktop/tour_pictures.h"

namespace quintara::desktop {
namespace {

constexpr const char* screenSettings = R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false,
  "screens": [{"name": "desk", "x": 0, "y": 0, "width": 1920, "height": 1080, "logicalDpi": 96,
               "logicalBaseDpi": 96, "dpr": 1}]})";

[[noreturn]] void Fail(const QString& why) {
  throw std::runtime_error(why.toStdString());
}

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  // Unbuffered, so that a full disk is met here and not in a closing that says nothing. A short write gives
  // no reason; the next one does.
  bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
  for (qint64 done = 0; written && done < bytes.size();) {
    const qint64 more = file.write(bytes.data() + done, bytes.size() - done);
    written = more > 0;
    done += more;
  }
  if (written) return;
  const QString why = file.errorString();
  if (file.isOpen()) file.remove();
  Fail(QString("%1 could not be written: %2").arg(QDir::toNativeSeparators(path), why));
}

void WritePicture(const QString& path, const QImage& picture) {
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  if (!picture.convertToFormat(QImage::Format_RGB32).save(&png, "PNG"))
    Fail(QString("%1 could not be made").arg(QDir::toNativeSeparators(path)));
  Write(path, png.data());
}

// The screen of this machine, if it has one, is left alone, and so is how it is set.
void UseScreenInMemory(const QTemporaryDir& folder) {
  const QString settings = folder.filePath("screen.json");
  if (!folder.isValid()) Fail("there is no place for a temporary file: " + folder.errorString());
  Write(settings, screenSettings);
  qputenv("QT_QPA_PLATFORM", QFile::encodeName("offscreen:configfile=" + settings));
  for (const char* setting :
       {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_QPA_PLATFORMTHEME"})
    qunsetenv(setting);
  // What it can't do with windows, and where it keeps what it never uses, is of no interest here.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith("This plugin does not support") && !text.startsWith("QStandardPaths:"))
      std::fprintf(stderr, "quintara: %s\n", qPrintable(text));
  });
}

void PlayInto(const QString& folder) {
  const QString data = FindFolders().data;
  if (!QDir(data).exists()) Fail(QString("the folder %1 is missing").arg(QDir::toNativeSeparators(data)));
  if (!QDir().mkpath(folder)) Fail(QString("the folder %1 could not be made").arg(folder));
  const QString shown = QDir::toNativeSeparators(QDir(folder).absolutePath());
  std::printf(
      "A whole game plays by itself, six shells on four targets, then the documents and the\n"
      "demonstrations. A picture of each stage goes to the folder %s\n",
      qPrintable(shown));
  std::fflush(stdout);
  QElapsedTimer time;
  time.start();
  int stages = 0;
  TourPictures tour(data, [&](const QString& name, const QImage& picture) {
    const bool numbered = !name.startsWith("screenshot");
    const QString number = numbered ? QString("%1-").arg(++stages, 2, 10, QChar('0')) : QString();
    WritePicture(QString("%1/%2%3.png").arg(folder, number, name), picture);
  });
  if (const std::string fault = tour.Play(); !fault.empty()) Fail(QString::fromStdString(fault));
  std::printf("All went well: %d stages in %.1f seconds.\n", stages,
              static_cast<double>(time.elapsed()) / 1000);
}

}  // namespace

int RunTour(int argumentCount, char** arguments) {
  constexpr int allWritten = 0, failed = 1, wrongArguments = 2;
  if (argumentCount != 3) {
    std::fputs("quintara: --tour needs one folder, for its pictures\n", stderr);
    return wrongArguments;
  }
  try {
    const QTemporaryDir settings;
    UseScreenInMemory(settings);
    const QString folder = QFile::decodeName(arguments[2]);
    Application application(argumentCount, arguments);
    PlayInto(folder);
    return allWritten;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "quintara: the tour ended early: %s\n", fault.what());
    return failed;
  }
}

}  // namespace quintara::desktop
