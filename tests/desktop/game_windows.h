#pragma once

#include <gtest/gtest.h>

#include <QtGui/QKeyEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <string>
#include <vector>

#include "desktop/desktop_platform.h"
#include "desktop/form_window.h"
#include "desktop/session.h"
#include "desktop/strip.h"
#include "front/companion.h"
#include "program/program.h"
#include "tests/support/recording_platform.h"

namespace quintara::desktop {

// The whole program in windows on the screen.
class GameWindows : public testing::Test {
 protected:
  enum class Below { Nothing, Strip };

  explicit GameWindows(Below below = Below::Nothing) {
    platform.Attach(&session);
    if (below == Below::Strip) SeatStrip(session, program, companion);
    session.Run([this] { program.Start(); });
    Activate(main);
  }
  ~GameWindows() override { platform.Attach(nullptr); }

  FormWindow& WindowOf(Form& form) { return *session.WindowOf(form); }
  template <typename Widget = QWidget>
  Widget& WidgetOf(const Object& object) {
    return dynamic_cast<Widget&>(*WindowOf(object.form()).WidgetOf(object));
  }
  void Do(const std::function<void()>& handler) {
    session.Run([&] { program.scene().dispatcher().Run(main, handler); });
  }
  void Activate(Form& form) {
    WindowOf(form).activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&WindowOf(form)));
  }
  void Open(Form& form) {
    Do([&] { form.Show(); });
    Activate(form);
  }
  // A key as the user presses it, a while after the last one: it goes to whatever has the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    SendKey(QEvent::KeyPress, key, modifiers, pressedAt_ += 1000);
    SendKey(QEvent::KeyRelease, key, modifiers, pressedAt_ + 50);
  }
  static void SendKey(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers, quint64 time) {
    const bool types = key < 0x80;
    QKeyEvent event(type, key, modifiers,
                    types ? QString(QChar(QLatin1Char(static_cast<char>(key)))) : QString());
    event.setTimestamp(time);
    if (QApplication::focusWidget() != nullptr) QApplication::sendEvent(QApplication::focusWidget(), &event);
  }
  // From the locked-on target on, without the wait for it. The gun is laid, so that it can be fired.
  void OpenProfile() {
    Do([this] {
      main.searchButton.Enabled = false;
      main.magnifyButton.Enabled = true;
    });
    Do([this] { main.magnifyButton.Click.Raise(); });
    Do([this] { main.fireButton.Enabled = true; });
  }
  // The offer to the player of a good game, in the list's open window.
  void TypeAName() {
    Do([this] {
      program.masters().namePanel.Visible = true;
      program.masters().nameBox.SetFocus();
    });
  }
  // The controls that the Tab key walks through, from the window on.
  std::vector<std::string> TabOrder(Form& form) {
    std::vector<std::string> names;
    WindowOf(form).setFocus();
    do {
      Press(Qt::Key_Tab);
      names.push_back(NameOfFocus(form));
    } while (names.size() < 30 && (names.size() == 1 || names.back() != names.front()));
    names.pop_back();
    return names;
  }
  std::string NameOfFocus(Form& form) {
    for (const Object* object : form.objects()) {
      if (WindowOf(form).WidgetOf(*object) == QApplication::focusWidget()) return std::string(object->name());
    }
    return "";
  }

  TemporaryFolder folder;
  DesktopPlatform platform{QString::fromStdString(folder.text())};
  Program program{platform};
  QuintaraForm& main = program.quintara();
  Companion companion{program};
  Session session{program.scene(), AssistanceTable(program)};

 private:
  quint64 pressedAt_ = 1'000'000;
};

using Names = std::vector<std::string>;

}  // namespace quintara::desktop
