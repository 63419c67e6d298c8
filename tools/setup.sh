#!/usr/bin/env bash
# Installs the Debian packages that this project needs and that are missing: "setup.sh run" for building and starting the
# program, "setup.sh test" for the tests as well. Says nothing and asks for nothing when all are there.
set -euo pipefail

run_packages=(
  "g++|the C++ compiler"
  "cmake|the build description"
  "ninja-build|runs the build"
  "qt6-base-dev|the windows, printing and pictures (Qt 6)"
  "libeigen3-dev|the algebra of fitting readings to a tide (Eigen)"
  "libcli11-dev|reads the command line of the terminal companion, tides (CLI11)"
  "nlohmann-json3-dev|writes its JSON (nlohmann-json)"
  "libhowardhinnant-date-dev|the clocks of the world's time zones (Hinnant's date)"
  "tzdata|the rules of those clocks"
  "fonts-liberation|a clear font for a machine that has none"
)
test_packages=(
  "libgtest-dev|the test framework (GoogleTest)"
  "libbenchmark-dev|the timings (Google Benchmark)"
  "clang-format|checks the source's layout"
  "poppler-utils|reads the printed pages back as text"
)

case "${1:-run}" in
  run) wanted=("${run_packages[@]}") ;;
  test) wanted=("${run_packages[@]}" "${test_packages[@]}") ;;
  *) echo "setup.sh: say 'run' or 'test'" >&2; exit 2 ;;
esac

missing=()
for entry in "${wanted[@]}"; do
  name=${entry%%|*}
  if [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null || true)" != installed ]; then
    missing+=("$name")
    [ ${#missing[@]} -eq 1 ] && echo "These Debian packages are missing and are installed now:"
    printf '  %-18s %s\n' "$name" "${entry#*|}"
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Installing needs root: run this as root once, or install them yourself: apt-get install ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi
apt() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y "$@"; }
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { apt update && apt install --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
  tail -n 20 "$log" >&2
  echo "The packages could not be installed: see the lines above." >&2
  exit 1
fi
echo "Installed."
