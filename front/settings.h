#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "front/pixels.h"

namespace quintara {

class Scene;

// What a player has chosen of the windows and finds again at the next start. The Scene knows nothing of it:
// its own switch for sounds starts ON as ever.
struct Settings {
  static constexpr int loudest = 100;

  std::optional<double> zoom;  // 0.25 to 8; none until the player has chosen one
  bool mute = false;
  int volume = loudest;                                   // percent, from 0
  bool strip = true;                                      // whether the strip below the main form shows
  bool trace = false;                                     // whether the paths of shells are drawn
  bool soundCaptions = false;                             // whether sounds are told in the strip
  std::map<std::string, PixelPoint, std::less<>> places;  // of windows, by the names of their forms

  // How loud sounds are now, in percent.
  int Loudness() const { return mute ? 0 : volume; }

  friend bool operator==(const Settings&, const Settings&) = default;
};

// Settings as the lines of a text, one each, as "volume = 80".
std::vector<std::string> LinesOf(const Settings& settings);

struct ReadSettings {
  Settings settings;     // what is damaged or missing is as at the first start
  bool damaged = false;  // whether some line is none of these, or not in its range
};
ReadSettings SettingsFromLines(const std::vector<std::string>& lines);

// The settings in the file settings.txt, which lies where the player's list of masters lies. A damaged file
// is put aside as settings.txt.damaged, over an older one; a missing one is as good as an empty one.
ReadSettings LoadSettings(const Scene& scene);
// False: the old file is as it was.
bool SaveSettings(const Scene& scene, const Settings& settings);

}  // namespace quintara
