#pragma once

#include <QtCore/QElapsedTimer>
#include <QtGui/QImage>
#include <QtTest/QTest>

#include <functional>
#include <string>
#include <vector>

#include "desktop/desktop_platform.h"
#include "desktop/form_window.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "scene/controls.h"
#include "scene/input.h"
#include "scene/scene.h"
#include "tests/support/recording_platform.h"

namespace quintara::desktop {

// A form with a control of each kind that windows treat differently. Its places are whole pixels.
class WindowForm : public Form {
 public:
  explicit WindowForm(Scene& owner)
      : Form(owner, "Trial",
             {.caption = "Trial", .clientWidth = 9000, .clientHeight = 6000, .backColor = 0x0000FF00}) {
    Left = 3000;
    Top = 1500;
  }

  ControlArray<Line> Line1{*this, "Line1"};

  // On top to the left: a box with what it holds, and behind it a label that it hides in part.
  PictureBox picFront{*this, "picFront", {300, 300, 1500, 1500}, {.backColor = 0x00FF0000}};
  PictureBox picBack{*this, "picBack", {900, 900, 1500, 1500}, {.backColor = 0x00FFFFFF}};
  Label lblBehind{*this, "lblBehind", {0, 600, 3000, 150}, {.backColor = 0x000000FF}};
  Shape shpInBox{picFront,
                 "shpInBox",
                 {1200, 1200, 900, 900},
                 {.borderStyle = BorderStyle::None, .fillStyle = FillStyle::Solid, .fillColor = 0x0000FFFF}};
  Image imgOver{picFront, "imgOver", {0, 0, 300, 300}, {.picture = "fire"}};
  Line Line1_0{picBack, Line1.At(0), {0, 1200, 1500, 1200}, {.borderColor = 0x000000FF}};

  Image imgFire{*this, "imgFire", {3000, 300, 420, 420}, {.picture = "fire"}};
  CommandButton cmdPush{*this, "cmdPush", {3000, 900, 900, 300}, {.caption = "Push"}};
  VScrollBar vsbUpside{*this,
                       "vsbUpside",
                       {5400, 300, 255, 1500},
                       {.min = 750, .max = 250, .smallChange = 10, .largeChange = 60, .value = 250}};
  Slider sldRuled{*this, "sldRuled", {5400, 2000, 1500, 375}, {.min = 10, .max = 20, .value = 12}};
  TextBox txtName{*this, "txtName", {5400, 3000, 1500, 300}};
  ListBox lstNames{*this, "lstNames", {5400, 3600, 1500, 900}};
  RichTextBox rtbText{*this, "rtbText", {300, 3600, 3000, 1500}};
  Timer tmrClock{*this, "tmrClock", {}};
  Menu mnuTop{*this, "mnuTop", {.caption = "Top", .visible = false}};
  Menu mnuOne{mnuTop, "mnuOne", {.caption = "One"}};
  Menu mnuBreak{mnuTop, "mnuBreak", {.caption = "-", .enabled = false}};
  Menu mnuTwo{mnuTop, "mnuTwo", {.caption = "Two"}};
};

// Such a form in a window on the screen, with what it was told.
class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    platform.Attach(&session);
    Show(form);
  }

  void Show(Form& shown) {
    session.Run([&] { shown.Show(); });
    EXPECT_TRUE(QTest::qWaitForWindowExposed(session.WindowOf(shown)));
  }
  void Note(Event<>& event, const char* what) {
    event.Bind([this, what] { heard.push_back(what); });
  }
  // Changes the Scene as a handler would.
  void Do(const std::function<void()>& handler) {
    session.Run([&] { scene.dispatcher().Run(form, handler); });
  }

  FormWindow& window() { return *session.WindowOf(form); }
  template <typename Widget = QWidget>
  Widget& WidgetOf(const Object& object) {
    return dynamic_cast<Widget&>(*window().WidgetOf(object));
  }
  // What is on the screen at a place in the form's twips.
  QColor ColourAt(int left, int top) {
    return window().grab().toImage().pixelColor(ToPixels(left), ToPixels(top));
  }
  // The pixel there, in the zoom that is set.
  QPoint Pixel(int left, int top) const {
    return (QPointF(left, top) / twipsPerPixel * session.zoom().factor()).toPoint();
  }
  // A click with the mouse, wherever the widget is that takes it.
  void ClickAt(int left, int top) {
    QWidget* widget = window().childAt(Pixel(left, top));
    QTest::mouseClick(widget, Qt::LeftButton, {}, widget->mapFrom(&window(), Pixel(left, top)));
  }

  TemporaryFolder folder;
  DesktopPlatform platform{QString::fromStdString(folder.text())};
  Scene scene{platform};
  WindowForm form{scene};
  WindowForm other{scene};
  std::vector<std::string> heard;
  Session session{scene};
};

using Heard = std::vector<std::string>;

}  // namespace quintara::desktop
