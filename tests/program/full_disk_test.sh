#!/usr/bin/env bash
# full_disk_test.sh HOST: saves by quintara-host on a real disk that is full, and with a block more free each time,
# until all fits. Skipped (77) where the machine lends a user no disk of his own.
set -euo pipefail
host=$1

if [[ ${2-} != --own-disk ]]; then
  unshare --user --map-root-user --mount true 2>/dev/null || exit 77
  exec unshare --user --map-root-user --mount "$0" "$host" --own-disk
fi
expected=$(mktemp -d)
trap 'umount "$folder" 2>/dev/null; rm -rf "$expected"' EXIT
folder=$expected/disk
mkdir "$folder"
mount -t tmpfs -o size=256k tmpfs "$folder" 2>/dev/null || exit 77

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

# play: starts the game, which saves the record, enters a name, which saves the list, and prints the boxes shown.
play() {
  printf '%s\n' 'answer menu mnuMasters' start 'set Quintara.Label17.Caption "40"' 'click Quintara.cmdHelp' \
    'set frmMasters.Picture1.Visible -1' 'key frmMasters.Text1 65' 'key frmMasters.Text1 13' quit |
    "$host" "$folder" | grep '^! box' || true
}

# expect_whole FILE BOXES: it is the new one, or the player was told and it is the old one.
expect_whole() {
  local wanted=new
  [[ $2 != *"$1"* ]] || wanted=old
  cmp "$folder/$1" "$expected/$wanted-$1" || fail "$1 is not the $wanted one; the boxes were:" "$2"
  [[ $wanted == new ]]
}

seq -f 'Somebody %05g - Master of Quintara' 1 1500 | sed 's/$/\r/' >"$expected/old-Masters.txt"
printf '%-60s' 'other records' >"$expected/old-extra.txt"
cp "$expected/old-Masters.txt" "$expected/new-Masters.txt"
printf 'A - Master of Quintara\r\n' >>"$expected/new-Masters.txt"
printf '%-40s%-20s' 'other records' 15 >"$expected/new-extra.txt"

block=$(stat -f -c %S "$folder")
for ((free = 0, saved = 0; saved < 2; ++free)); do
  rm -f "$folder"/*
  cp "$expected/old-Masters.txt" "$folder/Masters.txt"
  cp "$expected/old-extra.txt" "$folder/extra.txt"
  head -c $((($(stat -f -c %a "$folder") - free) * block)) /dev/zero >"$folder/others"
  boxes=$(play)
  saved=0
  for file in Masters.txt extra.txt; do
    if expect_whole "$file" "$boxes"; then saved=$((saved + 1)); fi
  done
  ((free > 0 || saved == 0)) || fail 'the disk was not full'
  [[ $(ls "$folder") == $'Masters.txt\nextra.txt\nothers' ]] || fail 'left behind:' "$(ls "$folder")"
done
((free > 10)) || fail 'all fitted at once'
