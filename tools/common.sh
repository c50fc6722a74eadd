# Sourced by the scripts of this project.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

say() { printf '\n== %s\n' "$*"; }
die() { printf '%s\n' "$*" >&2; exit 1; }

# Tidies up with these commands when the script ends. All of them run, whatever they say, and the
# script's own status comes out: in a plain trap a failing command would become the status.
at_exit() { trap "status=\$?; set +e; $1; exit \$status" EXIT; }

# The tracked files that fit the patterns, below the project's root.
tracked() {
  local list
  list=$(git -c safe.directory="$root" -C "$root" ls-files -- "$@")
  [ -n "$list" ] || die "git lists no files for $*"
  printf '%s\n' "$list"
}

# A value in the registry of the Wine prefix in use.
set_wine_value() { "$root/tools/wine" reg add "$1" /v "$2" /t "$3" /d "$4" /f >/dev/null; }

# Starts a virtual display of that size (WIDTHxHEIGHT) for the Wine programs that follow, and gives
# them a prefix (PREFIX, below build/) of their own: there is no window manager, so Wine draws the
# frames itself, instead of waiting for an answer that does not come whenever a window opens.
start_display() {
  local number
  exec 8<> <(:)
  Xvfb -displayfd 8 -screen 0 "$1x24" -nolisten tcp -noreset >/dev/null 2>&1 &
  display_server=$!
  export QUENDA_WINE_PREFIX=$root/build/$2
  read -r -t 20 number <&8 || die "The virtual display does not start (Xvfb)."
  export DISPLAY=:$number
  set_wine_value 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ N || die "Wine does not start."
}

# Prepares the prefix in use for pictures of windows with so many dots per inch, in a look of
# tools/pictures/looks: light unless given.
prepare_pictures() {
  set_wine_value 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$1"
  (cd "$root/tools/pictures/looks" && "$root/tools/wine" reg import "${2:-light}.reg") >/dev/null 2>&1
  # The signs on the frames' buttons.
  cp /usr/share/wine/fonts/marlett.ttf "$QUENDA_WINE_PREFIX/drive_c/windows/Fonts/"
  WINEPREFIX=$QUENDA_WINE_PREFIX wineserver -k -w || true
}

# Ends whatever still runs under Wine in this project's prefix, then the virtual display.
end_display() {
  [ -n "${display_server:-}" ] || return 0
  WINEPREFIX=$QUENDA_WINE_PREFIX wineserver -k 2>/dev/null || true
  kill "$display_server" 2>/dev/null || true
}

# Configures and builds in build/NAME; what is printed on the way is shown only when it fails.
# Usage: build NAME PRESET [CMAKE-OPTION...] [-- TARGET...]
build() {
  local name=$1 preset=$2 options=()
  shift 2
  while [ $# -gt 0 ] && [ "$1" != -- ]; do
    options+=("$1")
    shift
  done
  if [ $# -gt 0 ]; then shift; fi
  if command -v ccache >/dev/null; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
  fi
  local log=$root/build/$name.log
  mkdir -p "$(dirname "$log")"
  (
    cd "$root"
    cmake --preset "$preset" -B "build/$name" "${options[@]}" &&
      cmake --build "build/$name" --parallel "$jobs" ${1:+--target "$@"}
  ) >"$log" 2>&1 || { cat "$log" >&2; die "Building $name failed."; }
}
