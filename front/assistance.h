#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "front/bar_values.h"

namespace quintara {

class Container;
class Form;
class Object;
class Program;

// What windows tell of a single control beyond what they show: to assistive tools, under the pointer, and
// which keys use it.
struct Assistance {
  Object& control;
  std::string_view name = "";       // as assistive tools say it; empty: its caption
  std::string_view keys = "";       // as "H; F1"; letters work in the form's own window, function keys in all
  std::string_view toolTip = "";    // the first key is added to it
  const Object* readOut = nullptr;  // the control whose caption tells the value; a label tells its own
  std::string_view unit = "";       // of the value
  bool announced = false;           // whether a change is told at once
  bool tipOnly = false;             // it has a tool tip, and assistive tools need not know it

  // What the tables add that are about some kinds of controls only.
  std::function<std::string_view()> whyOff = nullptr;  // the tool tip while the control can't be used
  BarScale scale = {};                                 // of a bar
  bool pressedOnce = false;  // a second press within the time of a double click is none; see Presses
};

// The assistance for all controls of a program. The rows of a form stand in the order in which the Tab key
// walks through it; a control without a row speaks for itself.
class AssistanceTable {
 public:
  // For forms of which nobody has told anything.
  AssistanceTable() = default;
  // For the game's forms, each of its own table. The program must outlive it.
  explicit AssistanceTable(Program& program);

  void Add(std::initializer_list<Assistance> rows);
  // These three add to the rows of controls.
  void AddReasons(std::initializer_list<std::pair<Object*, std::function<std::string_view()>>> whyOff);
  void AddScales(std::initializer_list<std::pair<Object*, BarScale>> scales);
  void PressOnce(std::initializer_list<Object*> controls);

  const std::vector<Assistance>& rows() const { return rows_; }
  // Null for a control that speaks for itself.
  const Assistance* For(const Object& control) const;
  // The control whose caption is the control's value, or null.
  const Object* ReadOutOf(const Object& control) const;
  // The control's name and value: "Elevation, 45 degrees". Empty where there is nothing to say.
  std::string NameOf(const Object& control) const;
  // With its key: "Fire the shell (F)"; why it is off, where it is. Empty where there is none.
  std::string ToolTipOf(const Object& control) const;
  // The front-most control with a tool tip at a place on a form's or picture box's surface, in twips, also
  // one that is off and so lets the mouse through; null where there is none.
  const Object* TippedAt(const Container& container, double left, double top) const;
  // What the values of a bar stand for; their own numbers where nobody has told.
  BarScale ScaleOf(const Object& bar) const;
  // The form's objects as the Tab key walks through them.
  std::vector<Object*> InTabOrder(const Form& form) const;
  // What a key, written as in the rows, clicks in the window of a form; null for no such key.
  Object* ForKey(const Form& form, std::string_view key) const;

 private:
  void AddReasonsWhyOff(Program& program);
  std::size_t RowOf(const Object& control) const;
  Assistance& RowToAddTo(Object& control);

  std::vector<Assistance> rows_;
  std::unordered_map<const Object*, std::size_t> rowOf_;
};

}  // namespace quintara
