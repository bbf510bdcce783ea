#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "numbers/single.h"

namespace quintara {

// Counts the changes of one object, so that a front end sees at a glance whether it has to be drawn again.
using ChangeCount = std::uint32_t;

class StoredProperty;

// The properties of one object together: they count their changes here and are restored from here.
class Properties {
 public:
  Properties() = default;
  Properties(const Properties&) = delete;
  Properties& operator=(const Properties&) = delete;

  ChangeCount changes() const { return changes_; }
  void CountChange() { ++changes_; }

  // Gives every property its start value again. No property acts on that.
  void Restore() const;

 private:
  friend class StoredProperty;
  StoredProperty* last_ = nullptr;
  ChangeCount changes_ = 0;
};

// What every property is that keeps a value: one of its object's, with a start value.
class StoredProperty {
 public:
  StoredProperty(const StoredProperty&) = delete;
  StoredProperty& operator=(const StoredProperty&) = delete;

 protected:
  explicit StoredProperty(Properties& all) : all_(all), previous_(std::exchange(all.last_, this)) {}
  ~StoredProperty() = default;

  void CountChange() { all_.CountChange(); }

 private:
  friend class Properties;
  virtual void Restore() = 0;

  Properties& all_;
  StoredProperty* const previous_;
};

inline void Properties::Restore() const {
  for (StoredProperty* at = last_; at != nullptr; at = at->previous_) at->Restore();
}

// A value that counts its changes. Reading is a plain load; writing compares, stores and counts. It has no
// other effect. Texts are compared character by character, by code value.
template <typename T>
class Property final : public StoredProperty {
  static constexpr bool isText = std::same_as<T, std::string>;
  // A text is handed in as a view, so that nothing is copied where nothing changes.
  using Given = std::conditional_t<isText, std::string_view, T>;

 public:
  // A text to start with must outlive the property.
  Property(Properties& all, Given start) : StoredProperty(all), value_(start), start_(std::move(start)) {}

  const T& Get() const { return value_; }
  operator const T&() const { return value_; }
  // A single is read as a double wherever an expression is worked out.
  operator double() const requires std::same_as<T, Single> { return value_; }
  operator std::string_view() const requires isText { return value_; }

  Property& operator=(Given value) {
    if (value_ == value) return *this;
    value_ = std::move(value);
    CountChange();
    return *this;
  }
  Property& operator=(const Property& other) { return *this = Given(other.value_); }

  friend bool operator==(const Property& property, std::string_view text) requires isText {
    return property.value_ == text;
  }
  friend auto operator<=>(const Property& property, std::string_view text) requires isText {
    return property.value_.compare(text) <=> 0;
  }

 private:
  void Restore() override { *this = start_; }

  T value_;
  const Given start_;
};

// A property whose writes its owner acts on, also those that write the value it holds already. The owner
// stores the value with Keep.
template <typename T, typename Owner>
class ActiveProperty final : public StoredProperty {
 public:
  ActiveProperty(Properties& all, T start, Owner& owner, void (Owner::*write)(T))
      : StoredProperty(all), value_(start), start_(std::move(start)), owner_(owner), write_(write) {}

  const T& Get() const { return value_; }
  operator const T&() const { return value_; }

  ActiveProperty& operator=(T value) {
    (owner_.*write_)(std::move(value));
    return *this;
  }
  ActiveProperty& operator=(const ActiveProperty& other) { return *this = other.value_; }

 private:
  friend Owner;
  void Keep(T value) {
    if (value_ == value) return;
    value_ = std::move(value);
    CountChange();
  }
  void Restore() override { Keep(start_); }

  T value_;
  const T start_;
  Owner& owner_;
  void (Owner::*const write_)(T);
};

// A property that keeps nothing: its owner works out its value at each read and acts on each write.
template <typename T, typename Owner>
class ComputedProperty {
 public:
  ComputedProperty(Owner& owner, T (Owner::*read)() const, void (Owner::*write)(T))
      : owner_(owner), read_(read), write_(write) {}
  ComputedProperty(const ComputedProperty&) = delete;

  operator T() const { return (owner_.*read_)(); }
  ComputedProperty& operator=(T value) {
    (owner_.*write_)(value);
    return *this;
  }
  ComputedProperty& operator=(const ComputedProperty& other) { return *this = static_cast<T>(other); }

 private:
  Owner& owner_;
  T (Owner::*const read_)() const;
  void (Owner::*const write_)(T);
};

}  // namespace quintara
