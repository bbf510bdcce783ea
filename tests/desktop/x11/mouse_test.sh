#!/usr/bin/env bash
# mouse_test.sh PROGRAM: plays with real X events, on a display of its own: a target is searched, a shell laid
# and fired, a document opened and closed, and the program left, all with the mouse. What came of it is read
# off the screen. Exit status: 0 when all was as it should be, 77 where the tools for it are missing.
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

# wait_until SECONDS WHAT COMMAND...: fails where the command does not succeed within that time.
wait_until() {
  local end=$((SECONDS + $1)) what=$2
  until "${@:3}"; do
    ((SECONDS <= end)) || fail "waited in vain until $what"
    sleep 0.05
  done
}

# The server picks a free display, and its screen lies in a file in the format of xwd.
start_display() {
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -fbdir "$scratch" -nolisten tcp 3>"$scratch/display" 2>/dev/null &
  processes+=($!)
  wait_until 10 "the display is there" test -s "$scratch/display"
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
  HOME=$scratch XDG_DATA_HOME=$scratch XDG_RUNTIME_DIR=$scratch QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 \
    "$scratch/quintara" >"$scratch/said" 2>&1 &
  program=$!
  processes+=("$program")
  wait_until 20 "the main window opens" shown Quintara
  place_of Quintara
}

shown() { [[ -n $(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null) ]]; }
hidden() { ! shown "$1"; }

# place_of TITLE: the clicks and areas that follow count from that window's inner corner.
place_of() {
  local place
  place=$(xdotool search --onlyvisible --name "^$1\$" getwindowgeometry --shell | grep -E '^[XY]=')
  eval "$place"
}

# click X Y [TIMES]
click() { xdotool mousemove "$((X + $1))" "$((Y + $2))" click --repeat "${3-1}" --delay 40 1; }

# area X Y WIDTH HEIGHT: a number that stands for what is seen there.
area() {
  dd if="$screen" iflag=skip_bytes,count_bytes skip=$((pixels + (Y + $2) * stride)) count=$(($4 * stride)) \
    bs=64K status=none |
    od -An -v -tx4 -w"$stride" | cut -d ' ' -f "$((X + $1 + 2))-$((X + $1 + $3 + 1))" | cksum
}
# changed BEFORE X Y WIDTH HEIGHT
changed() { [[ $(area "${@:2}") != "$1" ]]; }

hint=(524 643 200 62) # the yellow box that says what comes next
elevation=(56 683 29 17)
velocity=(121 683 29 17)
shots_fired=(752 677 25 22)
most_points=(805 677 22 22)
sky=(30 260 970 310)

find_target() {
  local before
  before=$(area "${hint[@]}")
  click 495 659
  wait_until 5 "the search begins" changed "$before" "${hint[@]}"
  before=$(area "${hint[@]}")
  wait_until 20 "the radar locks on" changed "$before" "${hint[@]}"
  before=$(area "${sky[@]}")
  click 495 683
  wait_until 5 "the profile opens" changed "$before" "${sky[@]}"
}

lay() {
  local before
  before=$(area "${elevation[@]}")
  click 101 667 3 # in the trough above the thumb
  wait_until 5 "the elevation has changed" changed "$before" "${elevation[@]}"
  before=$(area "${velocity[@]}")
  click 163 656 25 # the upper arrow
  wait_until 5 "the velocity has changed" changed "$before" "${velocity[@]}"
  click 236 666 10 # a slow flight, so that it can be watched
}

fire() {
  local shots points before
  shots=$(area "${shots_fired[@]}")
  points=$(area "${most_points[@]}")
  before=$(area "${sky[@]}")
  click 387 671
  wait_until 5 "a shot is counted" changed "$shots" "${shots_fired[@]}"
  wait_until 5 "the shell shows" changed "$before" "${sky[@]}"
  before=$(area "${sky[@]}")
  wait_until 5 "the shell moves" changed "$before" "${sky[@]}"
  wait_until 20 "the shell bursts and changes the points" changed "$points" "${most_points[@]}"
}

read_a_document() {
  local menu=(885 450 60 100) before
  before=$(area "${menu[@]}")
  click 980 658
  wait_until 5 "the Help menu opens" changed "$before" "${menu[@]}"
  click 905 456
  wait_until 5 "the introduction opens" shown Introduction
  place_of Introduction
  click 248 594
  wait_until 5 "the introduction closes" hidden Introduction
  place_of Quintara
}

leave() {
  click 980 689
  local status=0
  wait "$program" || status=$?
  ((status == 0)) || fail "the program ended with status $status"
}

start_display
start_program "$1"
find_target
lay
fire
read_a_document
leave
[[ ! -s $scratch/said ]] || fail "the program had something to say"
echo "all was as it should be, after $SECONDS seconds"
