# shellcheck shell=bash
# Wine's prefixes, and a display for programs when the user has none.

project=$PWD # even if the shell changes its directory

# Makes Wine's prefix, unless it is there: in build/, so that the user's own is not touched. $1 is
# "own" for windows on the user's display, or the DPI of a desktop that Wine draws itself, with title
# bars and a working focus on a display without a window manager. $2 is the size of that desktop, if
# not the usual one.
prepare_wine() {
  export WINEPREFIX=$project/build/wine-$1 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
  unset WINEARCH # the program needs 64 bits
  unset TMPDIR   # Wine 10 aborts with it
  [ -f "$WINEPREFIX/ready" ] || make_prefix "$1" || return
  [ "$1" = own ] && return
  set_value 'HKCU\Software\Wine\Explorer\Desktops' Tandem "${2:-1920x1200}" &&
    wineserver -w # the registry is written when the last program has ended
}

# Joined by &&, since bash ignores failures inside a function whose result is tested.
make_prefix() {
  local -x WINEDEBUG=fixme-all # the output goes into a file
  local replacements='HKCU\Software\Wine\Fonts\Replacements'
  say "Making Wine's prefix build/wine-$1: up to a minute"
  rm -rf "$WINEPREFIX" &&
    logged build/wine.log run_wineboot &&
    link_fonts &&
    set_value "$replacements" 'Courier New' 'Liberation Mono' &&
    set_value "$replacements" 'Microsoft Sans Serif' 'Liberation Sans' &&
    if [ "$1" != own ]; then
      set_value 'HKCU\Software\Wine\Explorer' Desktop Tandem &&
        set_value 'HKCU\Control Panel\Desktop' LogPixels "$1" /t REG_DWORD
    fi &&
    wineserver -w &&
    echo ready >"$WINEPREFIX/ready"
}

# In the background, since Wine itself ignores Ctrl+C until it is ready.
run_wineboot() { wineboot --init & wait $!; }

# Debian's Wine does not look into the folder of Debian's Wine fonts.
link_fonts() {
  [ ! -d /usr/share/wine/fonts ] ||
    ln -sf /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
}

# Sets the value $2 of the registry key $1 to $3.
set_value() { logged build/wine.log wine reg add "$1" /v "$2" /d "$3" /f "${@:4}"; }

# Starts a display for this shell and its programs; it ends with the shell.
start_display() {
  rm -f build/display
  Xvfb -displayfd 3 -screen 0 1920x1200x24 -nolisten tcp 3>build/display >build/xvfb.log 2>&1 &
  display_process=$!
  until [ -s build/display ]; do
    kill -0 $display_process 2>/dev/null ||
      { show_end build/xvfb.log "Xvfb, the display without a screen, does not start"; return 1; }
    sleep 0.1
  done
  DISPLAY=:$(cat build/display)
  export DISPLAY
}

# Ends what this shell has started: the display, tandem.exe and the rest of Wine.
clean_up() {
  local process
  for process in ${program_process:-} ${display_process:-}; do
    kill "$process" 2>/dev/null || true
  done
  case ${WINEPREFIX:-} in
    # Another ./run may show its window there.
    "$project/build/wine-own") [ ! -f "$WINEPREFIX/ready" ] || return 0 ;;
    "$project"/build/*) ;;
    *) return 0 ;; # the user's own
  esac
  wineserver -k >/dev/null 2>&1 || true
}
