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
  apt_get update -q || return 1
  # shellcheck disable=SC2086 # words
  apt_get install -q -y --no-install-recommends $missing
}

# apt-get, tried again for ten minutes while another package manager holds one of its locks.
apt_get() {
  for attempt in $(seq 120); do
    # shellcheck disable=SC2086
    message=$($as_root env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get "$@" 2>&1 >&3) && return 0
    case $message in
    *"Could not get lock"*) ;;
    *) break ;;
    esac
    [ "$attempt" != 1 ] || echo "waiting for another package manager" >&2
    sleep 5
  done 3>&1
  echo "$message" >&2
  return 1
}
