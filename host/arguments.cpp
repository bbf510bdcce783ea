#include "host/arguments.h"

#include "scene/visit.h"

namespace quintara::host {
namespace {

// What a plain word names.
template <typename Named>
Result<Named> ReadName(Result<Named> (*find)(const Scene&, std::string_view), const Scene& scene,
                       const Word& word) {
  const auto name = PlainWord(word);
  if (!name) return *name.refusal();
  return find(scene, *name);
}

template <typename Control>
Result<Control&> ReadControl(const Scene& scene, const Word& word, const char* kind) {
  const auto object = ReadName(FindObject, scene, word);
  if (!object) return *object.refusal();
  auto* control = As<Control>(*object);
  if (control == nullptr) return Refusal{std::string("the object is no ") + kind};
  return *control;
}

template <typename Value>
struct Choice {
  const char* word;
  Value value;
};

template <typename Value>
Result<Value> ReadChoice(const Word& word, Choice<Value> one, Choice<Value> other) {
  const auto chosen = PlainWord(word);
  if (!chosen) return *chosen.refusal();
  if (*chosen == one.word) return one.value;
  if (*chosen == other.word) return other.value;
  return Refusal{std::string(one.word) + " or " + other.word + " is expected"};
}

}  // namespace

Result<Object&> Read(To<Object&>, const Scene& scene, const Word& word) {
  return ReadName(FindObject, scene, word);
}

Result<Form&> Read(To<Form&>, const Scene& scene, const Word& word) {
  return ReadName(FindForm, scene, word);
}

Result<PropertyPath> Read(To<PropertyPath>, const Scene& scene, const Word& word) {
  return ReadName(FindProperty, scene, word);
}

Result<ScrollBar&> Read(To<ScrollBar&>, const Scene& scene, const Word& word) {
  return ReadControl<ScrollBar>(scene, word, "scroll bar");
}

Result<TextBox&> Read(To<TextBox&>, const Scene& scene, const Word& word) {
  return ReadControl<TextBox>(scene, word, "text box");
}

Result<RichTextBox&> Read(To<RichTextBox&>, const Scene& scene, const Word& word) {
  return ReadControl<RichTextBox>(scene, word, "rich text box");
}

Result<BarEnd> Read(To<BarEnd>, const Scene&, const Word& word) {
  return ReadChoice<BarEnd>(word, {"min", BarEnd::Min}, {"max", BarEnd::Max});
}

Result<Asker> Read(To<Asker>, const Scene&, const Word& word) {
  return ReadChoice<Asker>(word, {"box", Asker::Box}, {"menu", Asker::Menu});
}

Result<Count> Read(To<Count>, const Scene&, const Word& word) {
  const auto number = Integer32::Read(word);
  if (!number) return *number.refusal();
  if (*number < 0) return Refusal{"the number is negative"};
  return Count{*number};
}

Result<const std::string&> Read(To<const std::string&>, const Scene&, const Word& word) {
  return Text::Read(word);
}

Result<const Word&> Read(To<const Word&>, const Scene&, const Word& word) {
  return word;
}

}  // namespace quintara::host
