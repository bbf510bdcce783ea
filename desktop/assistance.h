#pragma once

#include <QtCore/QString>

#include <span>
#include <string_view>
#include <vector>

#include "scene/object.h"

namespace quintara::desktop {

// What windows tell of a single control beyond what they show: to assistive tools, under the pointer, and
// which keys use it. The rows of a form stand in the order in which the Tab key walks through it.
struct Assistance {
  std::string_view form;
  std::string_view control;
  std::string_view name = "";     // as assistive tools say it; empty: its caption
  std::string_view keys = "";     // as "H; F1"; letters work in the form's own window, function keys in all
  std::string_view toolTip = "";  // the first key is added to it
  std::string_view readOut = "";  // the control whose caption tells the value; a label tells its own
  std::string_view unit = "";     // of the value
  bool announced = false;         // whether a change is told at once
};

std::span<const Assistance> AssistanceTable();

// Null for a control that speaks for itself.
const Assistance* AssistanceFor(const Object& object);

// The control whose caption is the object's value, or null.
const Object* ReadOutOf(const Object& object);

// The object's name and value: "Elevation, 45 degrees". Empty where there is nothing to say.
QString AccessibleNameOf(const Object& object);
QString ToolTipOf(const Object& object);

// The form's objects as the Tab key walks through them.
std::vector<Object*> InTabOrder(const Form& form);

}  // namespace quintara::desktop
