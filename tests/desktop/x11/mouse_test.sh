#!/usr/bin/env bash
# mouse_test.sh PROGRAM: plays with real X events, on a display of its own: a target is searched, a shell laid
# and fired, a document opened and closed, and the program left, all with the mouse. What came of it is read
# off the screen. Exit status: 0 when all was as it should be, 77 where the tools for it are missing.
#
# On a busy machine the program may be seconds behind the mouse. Clicks wait in its queue and keep their order, so what
# is looked for after one is something that only this click can change, never what an earlier one may change late.
set -euo pipefail

for tool in Xvfb xdotool; do
  if ! command -v "$tool" >/dev/null; then
    echo "skipped: $tool is not installed"
    exit 77
  fi
done

scratch=$(mktemp -d)
processes=()
clean_up() {
  for process in "${processes[@]}"; do kill "$process" 2>/dev/null || true; done
  wait
  rm -rf "$scratch"
}
trap clean_up EXIT

fail() {
  echo "failed: $*" >&2
  cat "$scratch/said" >&2 || true
  exit 1
}

# wait_until WHAT COMMAND...: runs the command until it succeeds; fails where it does not come to that.
wait_until() {
  local end=$((SECONDS + longest_wait)) what=$1
  until "${@:2}"; do
    ((SECONDS <= end)) || fail "waited in vain until $what"
    sleep 0.02
  done
}
longest_wait=60 # seconds

# The server picks a free display, and its screen lies in a file in the format of xwd.
start_display() {
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -fbdir "$scratch" -nolisten tcp 3>"$scratch/display" 2>/dev/null &
  processes+=($!)
  wait_until "the display is there" test -s "$scratch/display"
  DISPLAY=:$(<"$scratch/display")
  export DISPLAY
  screen=$scratch/Xvfb_screen0
  pixels=$(($(number 0) + 12 * $(number 76)))
  stride=$(number 48)
}
number() { od -An -tu4 --endian=big -j "$1" -N 4 "$screen"; }

# A copy of the program in a folder of its own, so that no one's list of masters is touched.
start_program() {
  local folder
  folder=$(dirname -- "$1")
  cp -- "$1" "$scratch/quintara"
  cp -r -- "$folder/data" "$scratch/data"
  for variable in "${!QT_@}"; do
    [[ $variable == *PLUGIN_PATH ]] || unset "$variable"
  done
  HOME=$scratch XDG_DATA_HOME=$scratch XDG_RUNTIME_DIR=$scratch QT_QPA_PLATFORM=xcb \
    "$scratch/quintara" >"$scratch/said" 2>&1 &
  program=$!
  processes+=("$program")
  wait_until "the main window opens" find_window Quintara
  wait_until "the main window is painted" painted "${cancel_button[@]}"
}

# find_window TITLE: whether that window is shown; the clicks and areas that follow count from its inner corner.
find_window() {
  local place
  place=$(xdotool search --onlyvisible --name "^$1\$" getwindowgeometry --shell 2>/dev/null | grep -E '^[XY]=') &&
    eval "$place"
}
gone() { [[ -z $(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null) ]]; }

# click X Y [TIMES]
click() { xdotool mousemove "$((X + $1))" "$((Y + $2))" click --repeat "${3-1}" --delay 40 1; }

# pixels_of X Y WIDTH HEIGHT: what is seen there, a row of pixels a line.
pixels_of() {
  dd if="$screen" iflag=skip_bytes,count_bytes skip=$((pixels + (Y + $2) * stride)) count=$(($4 * stride)) \
    bs=64K status=none |
    od -An -v -tx4 -w"$stride" | cut -d ' ' -f "$((X + $1 + 2))-$((X + $1 + $3 + 1))"
}
# area X Y WIDTH HEIGHT: a number that stands for what is seen there.
area() { pixels_of "$@" | cksum; }
# changed BEFORE X Y WIDTH HEIGHT
changed() { [[ $(area "${@:2}") != "$1" ]]; }
# painted X Y WIDTH HEIGHT: whether something is seen there, not a window that is still empty.
painted() { (($(pixels_of "$@" | tr ' ' '\n' | sort -u | wc -l) > 1)); }

cancel_button=(952 679 56 20)
hint=(524 643 200 62) # the yellow box that says what comes next
magnify=(489 681 12 8) # its lower half: the pointer, which is seen too, reaches into the upper one
elevation=(56 683 29 17)
velocity=(121 683 29 17)
shots_fired=(752 677 25 22)
most_points=(805 677 22 22)
sky=(30 260 970 310)

find_target() {
  local hint_before button_before panel_before
  hint_before=$(area "${hint[@]}")
  button_before=$(area "${magnify[@]}")
  panel_before=$(area "${elevation[@]}")
  click 495 659
  wait_until "the search begins" changed "$hint_before" "${hint[@]}"
  wait_until "the radar locks on" changed "$button_before" "${magnify[@]}"
  click 495 683
  wait_until "the profile opens" changed "$panel_before" "${elevation[@]}"
}

lay() {
  local elevation_before velocity_before
  elevation_before=$(area "${elevation[@]}")
  velocity_before=$(area "${velocity[@]}")
  click 101 667 3 # in the trough above the thumb
  wait_until "the elevation has changed" changed "$elevation_before" "${elevation[@]}"
  click 163 656 25 # the upper arrow
  wait_until "the velocity has changed" changed "$velocity_before" "${velocity[@]}"
  click 236 666 14 # the slowest flight, so that there is time to watch it
}

fire() {
  local shots points before
  shots=$(area "${shots_fired[@]}")
  points=$(area "${most_points[@]}")
  click 387 671
  wait_until "a shot is counted" changed "$shots" "${shots_fired[@]}"
  # From here on only the shell moves in the sky.
  before=$(area "${sky[@]}")
  wait_until "the shell shows" changed "$before" "${sky[@]}"
  before=$(area "${sky[@]}")
  wait_until "the shell moves" changed "$before" "${sky[@]}"
  click 270 666 14 # the fastest flight
  wait_until "the shell bursts and changes the points" changed "$points" "${most_points[@]}"
}

read_a_document() {
  local menu=(885 450 60 100) before
  before=$(area "${menu[@]}")
  click 980 658
  wait_until "the Help menu opens" changed "$before" "${menu[@]}"
  click 905 456
  wait_until "the introduction opens" find_window Introduction
  click 248 594
  wait_until "the introduction closes" gone Introduction
  wait_until "the main window is there again" find_window Quintara
}

leave() {
  click 980 689
  wait_until "the program ends" ended
  local status=0
  wait "$program" || status=$?
  ((status == 0)) || fail "the program ended with status $status"
}
ended() { ! kill -0 "$program" 2>/dev/null; }

start_display
start_program "$1"
find_target
lay
fire
read_a_document
leave
[[ ! -s $scratch/said ]] || fail "the program had something to say"
echo "all was as it should be, after $SECONDS seconds"
