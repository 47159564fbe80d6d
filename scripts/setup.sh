# Sourced by ./demo and ./check: the one list of Debian packages, and how they get there.
build_packages=(cmake ninja-build g++ libtbb-dev libopenblas-dev)
check_packages=("${build_packages[@]}" clang-19 libclang-rt-19-dev googletest libmpfr-dev libmpc-dev pkg-config)
packages_32=(g++-multilib)

say() { printf '[%02d:%02d] %s\n' $((SECONDS / 60)) $((SECONDS % 60)) "$*" >&2; }

# Prints those of its arguments that are not installed. A system without dpkg is taken to have what it needs.
missing_packages() {
  local package
  command -v dpkg-query >/dev/null || return 0
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || echo "$package"
  done
}

# Asks nothing: apt-get answers itself, and reads no terminal.
install_packages() {
  say "installing $*"
  apt-get update -q >&2 </dev/null &&
    DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends "$@" >&2 </dev/null
}

# need_packages PACKAGE...: root gets what is missing; anyone else is told the one command, and it fails.
need_packages() {
  local missing
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -eq 0 ]; then
    install_packages "${missing[@]}"
  else
    echo "Packages are missing. This installs them:" >&2
    echo "    sudo apt-get install -y --no-install-recommends ${missing[*]}" >&2
    return 1
  fi
}

# logged LOG COMMAND...: runs the command into the log; when it fails, shows the log's end and where it is.
logged() {
  local log=$1
  shift
  "$@" >>"$log" 2>&1 </dev/null && return 0
  tail -n 40 "$log" >&2
  say "FAILED: $*"
  say "the whole log: $log"
  return 1
}
