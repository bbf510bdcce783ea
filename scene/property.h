#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "numbers/single.h"

namespace quintara {

// Counts the changes of one object, so that a front end sees at a glance whether it has to be drawn again.
using ChangeCount = std::uint32_t;

// A property of an object: a value that counts its changes. Reading is a plain load; writing compares, stores
// and counts. It has no other effect.
template <typename T>
class Property {
 public:
  Property(ChangeCount& changes, T start) : changes_(&changes), value_(std::move(start)) {}
  Property(const Property&) = delete;

  const T& Get() const { return value_; }
  operator const T&() const { return value_; }
  // A single is read as a double wherever an expression is worked out.
  operator double() const requires std::same_as<T, Single> { return value_; }

  Property& operator=(T value) {
    if (value_ == value) return *this;
    value_ = std::move(value);
    ++*changes_;
    return *this;
  }
  Property& operator=(const Property& other) { return *this = other.value_; }

 private:
  ChangeCount* changes_;
  T value_;
};

// A property that holds text. Texts are compared character by character, by code value.
class TextProperty {
 public:
  TextProperty(ChangeCount& changes, std::string_view start) : changes_(&changes), value_(start) {}
  TextProperty(const TextProperty&) = delete;

  const std::string& Get() const { return value_; }
  operator const std::string&() const { return value_; }
  operator std::string_view() const { return value_; }

  TextProperty& operator=(std::string_view text) {
    if (value_ == text) return *this;
    value_ = text;
    ++*changes_;
    return *this;
  }
  TextProperty& operator=(const TextProperty& other) { return *this = std::string_view(other.value_); }

  friend bool operator==(const TextProperty& property, std::string_view text) {
    return property.value_ == text;
  }
  friend auto operator<=>(const TextProperty& property, std::string_view text) {
    return std::string_view(property.value_) <=> text;
  }

 private:
  ChangeCount* changes_;
  std::string value_;
};

// A property whose writes its owner acts on, also those that write the value it holds already. The owner
// stores the value with Keep.
template <typename T, typename Owner, void (Owner::*Write)(T)>
class ActiveProperty {
 public:
  ActiveProperty(Owner& owner, T start) : owner_(&owner), value_(std::move(start)) {}
  ActiveProperty(const ActiveProperty&) = delete;

  operator const T&() const { return value_; }
  const T& Get() const { return value_; }

  ActiveProperty& operator=(T value) {
    (owner_->*Write)(std::move(value));
    return *this;
  }
  ActiveProperty& operator=(const ActiveProperty& other) { return *this = other.value_; }

 private:
  friend Owner;
  void Keep(T value, ChangeCount& changes) {
    if (value_ == value) return;
    value_ = std::move(value);
    ++changes;
  }

  Owner* owner_;
  T value_;
};

}  // namespace quintara
