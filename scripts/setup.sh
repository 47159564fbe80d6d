# Sourced by ./demo, ./check and bench/run: the one list of Debian packages, and how they get there.
build_packages=(cmake ninja-build g++ libtbb-dev libopenblas-dev)
check_packages=("${build_packages[@]}" clang-19 libclang-rt-19-dev googletest libmpfr-dev libmpc-dev pkg-config dpkg-dev file)
extra_packages=(llvm-19 doxygen)
bench_packages=(libeigen3-dev libboost-dev)
peer_packages=(libmimalloc2.0 libjemalloc2 libxtensor-dev libxsimd-dev gfortran python3-numpy)
packages_32=(g++-multilib)
blas_packages_32=(libblas3:i386 libblas-dev:i386)

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

# Whether the system has a BLAS for the 32-bit target: it may know that architecture, and then has its own way.
has_blas_32() {
  echo 'extern "C" double cblas_dnrm2(...); int main() { return cblas_dnrm2(0, nullptr, 1) != 0; }' |
    g++ -m32 -x c++ - -o /dev/null -lblas 2>/dev/null
}

# apt with lists of its own, those of the 32-bit architecture, under DIR; signatures are checked by the system's keys.
apt_32() {
  local dir=$1
  shift
  timeout 300 apt-get -q -o APT::Architecture=i386 -o APT::Sandbox::User=root -o Acquire::http::Timeout=20 \
    -o Dir::State::lists="$dir/lists" -o Dir::Cache="$dir/cache" -o Dir::State::status=/dev/null "$@" </dev/null
}

# unpack_blas_32 PREFIX: puts the 32-bit BLAS under PREFIX, in lib and include, once. To install it would teach the system a second
# architecture, whose lists every later update would depend on; unpacked, it needs nobody's leave and changes
# nothing. Fails without apt, the network or the packages. Whether the lists are complete is not asked: the
# packages' being there is what counts.
unpack_blas_32() {
  local prefix=$1 work package
  [ ! -e "$prefix" ] || return 0
  work=$(mktemp -d) && mkdir -p "$work/lists/partial" "$work/cache/archives/partial" || return 1
  apt_32 "$work" update || true
  (cd "$work" && apt_32 "$work" download "${blas_packages_32[@]}" &&
    for package in ./*.deb; do dpkg -x "$package" all || exit 1; done &&
    mkdir -p new/lib new/include && cp -d all/usr/lib/i386-linux-gnu/blas/libblas.so* new/lib &&
    cp all/usr/include/i386-linux-gnu/cblas* new/include && mv new/include/cblas-netlib.h new/include/cblas.h) &&
    mkdir -p "${prefix%/*}" && mv "$work/new" "$prefix"
  local status=$?
  rm -rf "$work"
  return $status
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
