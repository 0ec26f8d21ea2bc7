# shellcheck shell=bash
# Wine's prefixes, and a display for programs that run without one of the user's.

project=$PWD # also for a shell that goes elsewhere afterwards

# Makes Wine's prefix, if it is not there yet: its own folder below build, so that nothing of the
# user's is touched. $1 is "own" for the windows of the user's display, or the dots per inch of a
# desktop that Wine draws itself, with title bars and a working focus on a display that has no window
# manager. $2 is the size of that desktop, if it is to be another than usual.
prepare_wine() {
  export WINEPREFIX=$project/build/wine-$1 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
  unset WINEARCH # the program needs 64 bits
  unset TMPDIR   # Wine 10 aborts with it
  [ -f "$WINEPREFIX/ready" ] || make_prefix "$1" || return
  [ "$1" = own ] && return
  set_value 'HKCU\Software\Wine\Explorer\Desktops' Tandem "${2:-1920x1200}" &&
    wineserver -w # the registry is written when the last program has ended
}

# Joined by &&, since bash does not stop at a failure in a function that is asked for its success.
make_prefix() {
  local -x WINEDEBUG=fixme-all # what it says goes into a file
  local replacements='HKCU\Software\Wine\Fonts\Replacements'
  say "Making Wine's prefix build/wine-$1: up to a minute"
  rm -rf "$WINEPREFIX" &&
    logged build/wine.log boot &&
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

# In the background, since Wine goes on after Ctrl+C for as long as it needs.
boot() { wineboot --init & wait $!; }

# Debian's Wine does not look into the folder where Debian puts its fonts.
link_fonts() {
  [ ! -d /usr/share/wine/fonts ] ||
    ln -sf /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
}

# Sets the value $2 of the registry's key $1 to $3.
set_value() { logged build/wine.log wine reg add "$1" /v "$2" /d "$3" /f "${@:4}"; }

# Starts a display for this shell and the programs it starts; it ends with the shell.
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
