#pragma once

#include <string>

namespace quintara {

class MastersForm;
class QuintaraForm;
class ShotWatch;

// What just happened in the game and what can be done now, in short sentences for who plays it the first
// time; two of them at most, which have room in a line of 120 letters.
std::string SentenceOnGame(const QuintaraForm& form, const ShotWatch& watch);

// What Enter will do with the name as it is typed so far; empty where no name is asked for.
std::string SentenceOnName(const MastersForm& masters);

// Where a Readme is that was opened and can't be seen.
std::string SentenceOnHiddenReadme(const QuintaraForm& form);

}  // namespace quintara
