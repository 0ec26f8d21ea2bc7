# shellcheck shell=bash
# Installs the packages that scripts/packages.txt names.

# Installs the missing packages of the given stages. If that is impossible it says why and fails.
install_packages() {
  local missing=() package brings
  while read -r package brings; do
    has_package "$package" "$brings" || missing+=("$package")
  done < <(for stage; do awk -v stage="$stage" '$1 == stage { print $2, $3 }' scripts/packages.txt; done)
  check_cmake || return
  [ ${#missing[@]} -gt 0 ] || return 0

  local by_hand="apt-get install --no-install-recommends ${missing[*]}" root=()
  if ! is_debian; then
    say "Please install what this system calls: ${missing[*]}" >&2
    return 1
  elif [ "$(id -u)" -eq 0 ]; then
    say "Installing ${missing[*]}: up to a few minutes"
  elif command -v sudo >/dev/null; then
    root=(sudo)
    say "Installing ${missing[*]}: up to a few minutes. sudo may ask for your password"
  else
    say "Install these as root: $by_hand" >&2
    return 1
  fi
  # The source that fails need not be the one that has the packages.
  logged build/apt-update.log "${root[@]}" apt-get update -q ||
    say "Trying with the package lists that are there" >&2
  check_cmake || return
  root+=(env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends)
  # Ctrl+C stops the download at once, but not the installation: dpkg would have to be repaired.
  if ! logged build/apt-install.log "${root[@]}" --download-only "${missing[@]}" ||
    ! (trap '' INT && logged build/apt-install.log "${root[@]}" "${missing[@]}"); then
    say "Install these as root: $by_hand" >&2
    return 1
  fi
}

is_debian() { command -v apt-get >/dev/null; }

# On Debian, whether a package is installed; elsewhere, whether the command that it brings is.
has_package() {
  if is_debian; then
    dpkg-query -W -f '${Status}\n' "$1" 2>/dev/null | grep -q '^install ok installed$'
  else
    [ -z "$2" ] || command -v "$2" >/dev/null
  fi
}

# Fails if CMake, or the one that would be installed, is too old.
check_cmake() {
  local needed there
  needed=$(sed -n 's/^cmake_minimum_required(VERSION \(.*\))$/\1/p' CMakeLists.txt)
  there=$({ cmake --version || LC_ALL=C apt-cache policy cmake; } 2>/dev/null |
    awk '$2 == "version" { print $3 } $1 == "Candidate:" { print $2 }')
  case $there in '' | '(none)') return 0 ;; esac
  printf '%s\n' "$needed" "$there" | sort --version-sort --check=silent ||
    { say "CMake $needed or later is needed; here it is $there" >&2; return 1; }
}
