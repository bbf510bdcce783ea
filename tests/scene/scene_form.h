#pragma once

#include <functional>

#include "scene/controls.h"
#include "scene/form_handle.h"
#include "scene/input.h"
#include "scene/scene.h"
#include "tests/support/recording_platform.h"

namespace quintara {

// A form with one control of each kind that the rules of the Scene treat differently.
class TrialForm : public Form {
 public:
  explicit TrialForm(Scene& owner, std::string_view name = "Trial")
      : Form(owner, name, {.caption = "Trial", .clientWidth = 9000, .clientHeight = 6000}) {
    Bind(Load, &TrialForm::Form_Load);
    Bind(QueryUnload, &TrialForm::Form_QueryUnload);
  }

  ControlArray<Line> Line1{*this, "Line1"};
  ControlArray<Label> Label1{*this, "Label1"};

  PictureBox Picture1{*this, "Picture1", {300, 300, 3000, 3000}};
  Line Line1_0{*this, Line1.At(0), {10, 20, 30, 40}, {.borderColor = 0x000000FF, .borderWidth = 3}};
  Line Ruler{*this, "Ruler", {0, 0, 9000, 6000}};
  Image Behind{*this, "Behind", {300, 300, 3000, 3000}, {.picture = "behind"}};
  Image Open{*this, "Open", {6000, 300, 600, 600}, {.picture = "open"}};
  Label Caption1{*this, "Caption1", {6000, 1200, 600, 300}, {.caption = "caption"}};
  CommandButton Push{*this, "Push", {6000, 2000, 900, 300}, {.caption = "Push"}};
  HScrollBar Bar{*this, "Bar", {6000, 3000, 900, 200}, {.min = 1, .max = 15, .value = 15}};
  VScrollBar Upside{*this,
                    "Upside",
                    {7500, 3000, 200, 900},
                    {.min = 750, .max = 250, .smallChange = 10, .largeChange = 60, .value = 250}};
  Slider Ruled{*this, "Ruled", {6000, 4000, 900, 300}, {.min = 0, .max = 100, .largeChange = 30}};
  TextBox Entry{*this, "Entry", {6000, 5000, 900, 300}};
  ListBox Names{*this, "Names", {300, 4000, 900, 900}};
  RichTextBox Document{*this, "Document", {1500, 4000, 900, 900}};
  Timer Clock{*this, "Clock", {}};
  Timer Other{*this, "Other", {}};
  Timer Early{*this, "Early", {.enabled = true, .interval = 1000}};
  Label Label1_0{Picture1, Label1.At(0), {150, 150, 300, 300}, {.caption = "0"}};
  Image Button{Picture1, "Button", {1500, 1500, 600, 600}, {.picture = "button"}};
  Shape Ring{Picture1, "Ring", {1500, 1500, 600, 600}};
  Menu mnuTop{*this, "mnuTop", {.caption = "Top", .visible = false}};
  Menu mnuItem{mnuTop, "mnuItem", {.caption = "Item"}};
  Menu mnuDivider{mnuTop, "mnuDivider", {.caption = "-", .enabled = false}};
  Menu mnuOff{mnuTop, "mnuOff", {.caption = "Off", .enabled = false}};

  std::function<void()> onQueryUnload;
  int loads = 0;
  int member = 0;  // keeps its value when the form is unloaded

 private:
  void Form_Load() { ++loads; }
  void Form_QueryUnload() {
    if (onQueryUnload) onQueryUnload();
  }
};

// A Scene with two such forms; the first is shown.
struct TrialScene {
  RecordingPlatform platform;
  Scene scene{platform};
  TrialForm form{scene};
  TrialForm other{scene, "Other"};
  Dispatcher& dispatcher = scene.dispatcher();

  TrialScene() {
    form.Show();
    platform.log.clear();
  }
};

}  // namespace quintara
