#include "scene/form.h"

#include <algorithm>
#include <cmath>

#include "scene/control_array.h"
#include "scene/menu.h"
#include "scene/scene.h"
#include "scene/timer.h"

namespace quintara {

Form::ScaleExtent::operator double() const {
  const Scale& scale = form_.scale();
  const bool across = axis_ == Axis::Across;
  return Single(across ? form_.InnerWidth() / scale.unitAcross : form_.InnerHeight() / scale.unitDown);
}

Form::ScaleExtent& Form::ScaleExtent::operator=(double units) {
  const Single count = units;
  const double inner = axis_ == Axis::Across ? form_.InnerWidth() : form_.InnerHeight();
  // A form squeezed to nothing has no unit that could be counted.
  if (!(count > 0) || !std::isfinite(count) || !(inner > 0)) return *this;
  Scale scale = form_.scale();
  scale.mode = Scale::user;
  (axis_ == Axis::Across ? scale.unitAcross : scale.unitDown) = inner / count;
  form_.Rescale(scale);
  return *this;
}

Form::ScaleModeNumber& Form::ScaleModeNumber::operator=(std::int16_t mode) {
  Scale scale = form_.scale();
  if (mode == Scale::twips) scale = Scale::InTwips();
  if (mode == Scale::pixels) scale = Scale::InPixels();
  if (mode == Scale::user) scale.mode = Scale::user;
  form_.Rescale(scale);
  return *this;
}

Form::Form(Scene& scene, std::string_view name, const FormLooks& looks)
    : Object(name, *this),
      Container(static_cast<Object&>(*this), changeCount(),
                {looks.backColor, looks.foreColor, looks.drawWidth, looks.scale}),
      Caption(changeCount(), looks.caption),
      Left(changeCount(), 0.0),
      Top(changeCount(), 0.0),
      Width(changeCount(), looks.clientWidth + frameWidth),
      Height(changeCount(), looks.clientHeight + frameHeight),
      ScaleMode(*this),
      ScaleWidth(*this, Axis::Across),
      ScaleHeight(*this, Axis::Down),
      scene_(scene),
      looks_(looks) {
  scene_.Join(*this);
}

Form::~Form() {
  scene_.Leave(*this);
}

double Form::InnerWidth() const {
  return std::max(Width.Get() - frameWidth, 0.0);
}
double Form::InnerHeight() const {
  return std::max(Height.Get() - frameHeight, 0.0);
}

void Form::Restore() {
  Caption = looks_.caption;
  Left = 0.0;
  Top = 0.0;
  Width = looks_.clientWidth + frameWidth;
  Height = looks_.clientHeight + frameHeight;
  RestoreSurface({looks_.backColor, looks_.foreColor, looks_.drawWidth, looks_.scale});
  // A container stands before its children in the table, so its scale is back before their places are.
  for (Object* object : objects_) object->Restore();
}

void Form::Touch() {
  if (loaded_ || scene_.ended()) return;
  loaded_ = true;
  scene_.NoteLoaded(*this);
  BeginTimers();
  Load.Raise();
}

void Form::BeginTimers() {
  for (Object* object : objects_) {
    if (object->kind() == Kind::Timer) static_cast<Timer*>(object)->BeginWait();
  }
}

void Form::Show() {
  Touch();
  if (!loaded_) return;
  shown_ = true;
  ++changeCount();
  scene_.platform().FormShown(*this);
}

void Form::Unload() {
  if (!loaded_ || unloading_) return;
  unloading_ = true;
  QueryUnload.Raise();
  unloading_ = false;

  scene_.dispatcher().DropQueued(*this);
  for (ControlArrayBase* array : arrays_) array->UnloadAll();
  loaded_ = false;
  shown_ = false;
  focus_ = nullptr;
  Restore();
  scene_.NoteUnloaded(*this);
}

bool Form::PopupMenu(Menu& menu, double x, double y) {
  Menu* chosen = scene_.platform().RunPopupMenu(*this, menu, x * scale().unitAcross, y * scale().unitDown);
  if (chosen == nullptr || chosen->IsSeparator() || !chosen->IsEnabled()) return false;
  chosen->Click.Raise();
  return true;
}

Object* Form::Find(std::string_view name, std::int16_t index) const {
  const auto isIt = [&](const Object* object) { return object->index() == index && object->name() == name; };
  const auto found = std::find_if(objects_.begin(), objects_.end(), isIt);
  return found == objects_.end() ? nullptr : *found;
}

void Form::MoveFocus(Object* object) {
  focus_ = object;
  ++focusMoves_;
}

}  // namespace quintara
