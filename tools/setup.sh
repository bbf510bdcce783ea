# shellcheck shell=bash
# What ./play and ./test share: installing what is missing, configuring and building. Sourced, not run.

root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

say() { printf 'quintara: %s\n' "$*" >&2; }

have() { command -v "$1" >/dev/null; }

# install_missing [PACKAGE...]: installs the packages that the game needs, and those named, where they are
# missing. What it can't install it tells, and goes on as long as what is there can build.
install_missing() {
  local needed=(g++ cmake ninja-build qt6-base-dev qt6-multimedia-dev fonts-liberation "$@")
  local installed package tool missing=() as_root=()

  if have apt-get; then
    installed=$'\n'$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${needed[@]}" 2>/dev/null || true)$'\n'
    for package in "${needed[@]}"; do
      [[ $installed == *$'\n'"installed $package"$'\n'* ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    ((EUID == 0)) || as_root=(sudo)
    if ((EUID == 0)) || have sudo; then
      say "installing ${missing[*]}"
      as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=120)
      # An update that fails for one of several sources may still do.
      "${as_root[@]}" update >&2 || true
      if "${as_root[@]}" install --no-install-recommends -y "${missing[@]}" >&2; then return 0; fi
    fi
    say "cannot install what is missing; as root, please run: apt-get install ${missing[*]}"
  elif [[ ! -f $root/build/build.ninja ]]; then
    say "nothing can be installed without apt-get; needed are, by their Debian names: ${needed[*]}"
  fi

  for tool in c++ cmake ninja; do
    if ! have "$tool"; then
      ((${#missing[@]})) || say "$tool was not found"
      exit 1
    fi
  done
}

# configure FOLDER SETTING...: runs CMake, but only where FOLDER is new, is set otherwise (a SETTING is a line
# of CMake's cache), was made for another place, or is older than the last change of a package.
configure() {
  local folder=$1 cache=$1/CMakeCache.txt setting
  local settings=("${@:2}" QUINTARA_DESKTOP:BOOL=ON) stale=false

  if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then rm "$cache"; fi
  [[ $folder/build.ninja -nt /var/lib/dpkg/status ]] || stale=true
  for setting in "${settings[@]}"; do
    grep -qxFs -- "$setting" "$cache" || stale=true
  done
  if $stale; then cmake -S "$root" -B "$folder" -G Ninja "${settings[@]/#/-D}"; fi
}

# build FOLDER TARGET...: builds the targets, or all without any, and is silent when there is nothing to do.
build() {
  if [[ $(ninja -C "$1" -n "${@:2}" 2>&1) != *"no work to do"* ]]; then ninja -C "$1" "${@:2}"; fi
}
