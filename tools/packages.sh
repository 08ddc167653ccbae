# Sourced by the scripts: need package... installs what is missing of these Debian packages.
need() {
  missing=""
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing="$missing $package"
  done
  [ -n "$missing" ] || return 0
  if [ "$(id -u)" = 0 ]; then
    as_root=""
  elif command -v sudo >/dev/null; then
    as_root="sudo"
  else
    echo "as root: apt-get install$missing" >&2
    return 1
  fi
  echo "installing:$missing"
  # shellcheck disable=SC2086 # words
  $as_root apt-get update -q
  # shellcheck disable=SC2086
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing
}
