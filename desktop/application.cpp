#include "desktop/application.h"

#include <QtCore/QTimer>
#include <QtGui/QFontMetrics>
#include <QtGui/QIcon>
#include <QtWidgets/QMessageBox>

#include <exception>
#include <utility>

#include "desktop/appearance.h"

namespace quintara::desktop {
namespace {

// The sizes that window frames, task bars and task switchers ask for.
QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64})
    icon.addPixmap(QPixmap(QString(":/pictures/icon_%1.png").arg(size), "PNG"));
  return icon;
}

// A message box could not say it.
void TellIfThereIsNoFont() {
  // Not by a list of the fonts: it names kinds of fonts where there is none.
  if (!QFontMetrics(QApplication::font()).inFont('A'))
    qWarning("Quintara: no font was found, so texts can't be read. Install one, such as Liberation Sans.");
}

}  // namespace

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments) {
  setApplicationName("Quintara");
  setDesktopFileName("quintara");
  setQuitOnLastWindowClosed(false);
  SetUpAppearance();
  setWindowIcon(ProgramIcon());
  // To find a font takes a while, which can wait until there is a window.
  QTimer::singleShot(0, this, &TellIfThereIsNoFont);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& fault) {
    TellFault(fault.what());
  } catch (...) {
    TellFault("an unknown fault");
  }
  return true;
}

void Application::TellFault(const QString& what) {
  qWarning("Quintara: %s", qPrintable(what));
  // Once is enough: a fault in a painting comes again with the next one.
  if (std::exchange(told_, true)) return;
  // The box belongs to no window: one in which something went wrong may be about to go, and would take it
  // along.
  QMessageBox::warning(nullptr, "Quintara", "Something went wrong: " + what + ". The game goes on.");
}

}  // namespace quintara::desktop
