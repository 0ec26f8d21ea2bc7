# shellcheck shell=bash
# What ./run, ./test and .ci/run share. They source it in the folder of the project.
. scripts/packages.sh
. scripts/wine.sh

say() { printf '%s\n' "$*"; }

# Wine turns Ctrl+C into an ordinary exit, after which the script would go on.
trap 'exit 130' INT
trap clean_up EXIT

# Wine and CMake need a UTF-8 locale for a folder whose name is not ASCII.
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

# For a command without arguments: answers --help and refuses others. $1 is the command, $2 its help.
take_no_arguments() {
  case ${3-} in
    '') return ;;
    -h | --help) say "$2"; exit 0 ;;
    *) say "$1: unknown argument $3; $1 --help explains" >&2; exit 2 ;;
  esac
}

# Runs a function while no other ./run, ./test or .ci/run holds the lock of this folder.
with_lock() {
  mkdir -p build
  exec 9>build/lock
  flock --nonblock 9 || { say "Waiting for another ./run or ./test in this folder"; flock 9; }
  "$@" 9>&- # closed, or a program that outlives this shell would keep the lock
  exec 9>&-
}

# Runs a command with its output in the file $1, and shows the end of that on failure.
logged() {
  local log=$1 code=0
  shift
  "$@" >"$log" 2>&1 </dev/null || code=$?
  [ $code -ne 130 ] || exit 130 # Ctrl+C that reached only the command, as with sudo
  [ $code -eq 0 ] || show_end "$log" "$* ended with $code"
  return $code
}

# Shows the end of a log file, and what has happened.
show_end() { { tail -n 20 "$1"; say "" "$2; the whole log is $1"; } >&2; }

# Configures and builds one preset.
build() {
  local cached quiet=()
  cached=$(sed -n 's/^CMAKE_CACHEFILE_DIR:INTERNAL=//p' "build/$1/CMakeCache.txt" 2>/dev/null) || true
  # CMake refuses a build folder that was copied or renamed.
  [ -z "$cached" ] || [ "$cached" -ef "build/$1" ] || rm -rf "build/$1"
  say "Building the preset $1: about a minute the first time"
  logged "build/$1.log" cmake --preset "$1" || return
  [ -t 1 ] || quiet=(-- --quiet) # on a terminal, Ninja shows its progress
  cmake --build --preset "$1" "${quiet[@]}"
}
