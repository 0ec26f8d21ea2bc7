# shellcheck shell=bash
# What ./run and ./test share: packages, the Windows build, Wine's prefix, a display.

say() { printf '%s\n' "$*"; }

# Installs those packages of a stage that are missing. Fails, with the reason on the screen, where
# that cannot be done.
install_packages() {
  local missing=() package root=()
  while read -r package; do
    dpkg-query -W -f '${Status}\n' "$package" 2>/dev/null | grep -q '^install ok installed$' ||
      missing+=("$package")
  done < <(awk -v stage="$1" '$1 == stage { print $2 }' scripts/packages.txt)
  [ ${#missing[@]} -eq 0 ] && return 0
  command -v apt-get >/dev/null || { say "no apt-get to install: ${missing[*]}"; return 1; }
  [ "$(id -u)" -eq 0 ] || root=(sudo)
  say "Installing ${missing[*]}"
  root+=(env DEBIAN_FRONTEND=noninteractive)
  "${root[@]}" apt-get update -qq &&
    "${root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >build/packages.log
}

# Configures and builds one preset.
build() {
  cmake --preset "$1" >"build/$1.log" || { cat "build/$1.log"; return 1; }
  cmake --build --preset "$1" -- --quiet
}

# Makes Wine's prefix, if it is not there yet: its own folder below build, so that nothing of the
# user's is touched. $1 is "own" for the windows of the user's display, or the dots per inch of a
# desktop that Wine draws itself, with title bars and a working focus on a display that has no window
# manager. $2 is the size of that desktop, if it is to be another than usual.
prepare_wine() {
  export WINEPREFIX=$PWD/build/wine-$1 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
  [ -f "$WINEPREFIX/ready" ] || make_prefix "$1" || return 1
  [ "$1" = own ] && return 0
  wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Tandem /d "${2:-1920x1200}" /f
  wineserver -w # the registry is written when the last program has ended
}

make_prefix() {
  rm -rf "$WINEPREFIX"
  wineboot --init >/dev/null 2>&1 || { say "Wine cannot make $WINEPREFIX" >&2; return 1; }
  # Debian's Wine does not look into the folder where Debian puts its fonts.
  ln -sf /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
  local replacements='HKCU\Software\Wine\Fonts\Replacements'
  wine reg add "$replacements" /v 'Courier New' /d 'Liberation Mono' /f
  wine reg add "$replacements" /v 'Microsoft Sans Serif' /d 'Liberation Sans' /f
  if [ "$1" != own ]; then
    wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Tandem /f
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f
  fi
  wineserver -w
  touch "$WINEPREFIX/ready"
}

# Starts a display for this shell and the programs it starts; it ends with the shell.
start_display() {
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 1920x1200x24 -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
  display_process=$!
  trap end_display EXIT
  until [ -s "$number_file" ]; do
    kill -0 $display_process 2>/dev/null || { say "Xvfb does not start"; return 1; }
    sleep 0.1
  done
  DISPLAY=:$(cat "$number_file")
  export DISPLAY
  rm -f "$number_file"
}

end_display() {
  case ${WINEPREFIX:-} in
    "$PWD"/build/*) wineserver -k >/dev/null 2>&1 || true ;; # never the user's own
  esac
  kill "$display_process" 2>/dev/null || true
}
