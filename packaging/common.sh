# Sourced by the scripts that make packages: the time and the commit that they carry.
source "$(dirname "${BASH_SOURCE[0]}")/../tools/common.sh"

in_git() { git -c safe.directory="$root" -C "$root" "$@"; }

export LC_ALL=C.UTF-8 TZ=UTC
umask 022
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
  SOURCE_DATE_EPOCH=$(in_git log -1 --format=%ct 2>/dev/null) || SOURCE_DATE_EPOCH=0
  export SOURCE_DATE_EPOCH
fi
commit=$(in_git describe --always --abbrev=10 '--exclude=*' --dirty=+ 2>/dev/null) || commit=unknown

# Gives everything below a folder the time of the commit and plain rights.
settle() {
  find "$1" -type d -exec chmod 755 {} +
  find "$1" -type f ! -perm -u+x -exec chmod 644 {} +
  find "$1" -type f -perm -u+x -exec chmod 755 {} +
  find "$1" -depth -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
}
