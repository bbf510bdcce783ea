#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

#include "host/commands.h"
#include "host/names.h"
#include "host/values.h"
#include "scene/controls.h"
#include "scene/input.h"

// How the words of a command become the parameters of the function that carries it out. All are read before
// it is called, so nothing has changed where one of them is refused.

namespace quintara::host {

// A number that is never negative.
struct Count {
  std::int32_t value;
};

// What asks the user something.
enum class Asker { Box, Menu };

// Stands for the type of a parameter.
template <typename Parameter>
struct To {};

// What a word means where a function takes such a parameter.
Result<Object&> Read(To<Object&>, const Scene& scene, const Word& word);
Result<Form&> Read(To<Form&>, const Scene& scene, const Word& word);
Result<PropertyPath> Read(To<PropertyPath>, const Scene& scene, const Word& word);
Result<ScrollBar&> Read(To<ScrollBar&>, const Scene& scene, const Word& word);
Result<TextBox&> Read(To<TextBox&>, const Scene& scene, const Word& word);
Result<RichTextBox&> Read(To<RichTextBox&>, const Scene& scene, const Word& word);
Result<BarEnd> Read(To<BarEnd>, const Scene& scene, const Word& word);
Result<Asker> Read(To<Asker>, const Scene& scene, const Word& word);
Result<Count> Read(To<Count>, const Scene& scene, const Word& word);
// A text in quotes.
Result<const std::string&> Read(To<const std::string&>, const Scene& scene, const Word& word);
// Any word: what it means depends on the others.
Result<const Word&> Read(To<const Word&>, const Scene& scene, const Word& word);

// Calls the function with what was read; the first refusal, where there is one, comes instead.
template <typename... Parameters>
Outcome CallWith(Outcome (*function)(Host&, Parameters...), Host& host, const Result<Parameters>&... read) {
  for (const Refusal* refusal : std::initializer_list<const Refusal*>{read.refusal()...}) {
    if (refusal != nullptr) return *refusal;
  }
  return function(host, *read...);
}

template <typename... Parameters, std::size_t... at>
Outcome ReadAndCall(Outcome (*function)(Host&, Parameters...), Host& host, const Arguments& arguments,
                    std::index_sequence<at...>) {
  return CallWith(function, host, Read(To<Parameters>(), host.scene, arguments[at])...);
}

template <typename... Parameters>
consteval std::size_t ParameterCount(Outcome (*)(Host&, Parameters...)) {
  return sizeof...(Parameters);
}

// The action that calls such a function, with one word for each parameter behind the host.
template <auto function, std::size_t words = ParameterCount(function)>
constexpr Action calls{words, words, [](Host& host, [[maybe_unused]] const Arguments& arguments) {
                         return ReadAndCall(function, host, arguments, std::make_index_sequence<words>());
                       }};

}  // namespace quintara::host
