# Sourced by the scripts at the top. install_packages REASON PACKAGE... installs with apt-get what
# is missing, and says so first; it does nothing where nothing is missing or apt-get isn't there.
install_packages() {
  reason=$1
  shift
  command -v dpkg-query >/dev/null || return 0
  missing=
  for package in "$@"; do
    status=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing="$missing $package"
  done
  [ -n "$missing" ] || return 0
  as_root=
  [ "$(id -u)" = 0 ] || as_root=sudo
  if ! command -v apt-get >/dev/null || ! command -v "${as_root:-apt-get}" >/dev/null; then
    echo "These packages are needed $reason, and can't be installed from here:$missing" >&2
    echo "Have them installed, for instance: apt-get install$missing" >&2
    exit 1
  fi
  echo "Installing$missing $reason."
  $as_root apt-get update -qq
  # shellcheck disable=SC2086
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    $missing >/dev/null
}
