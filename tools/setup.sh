#!/usr/bin/env bash
# Installs the Debian packages that this project needs and that are missing: "setup.sh run" for building and starting the
# program, "setup.sh package" for making a Debian package of it as well, "setup.sh test" for that and for the tests. Says
# nothing and asks for nothing when all are there.
set -euo pipefail

run_packages=(
  "g++|the C++ compiler"
  "cmake|the build description"
  "ninja-build|runs the build"
  "qt6-base-dev|the windows, printing and pictures (Qt 6)"
  "qt6-pdf-dev|shows the manual (Qt 6)"
  "qt6-svg-dev|drawings: the manual's, and the planner's picture as a file (Qt 6)"
  "libqpdf-dev|the manual's outline and links (qpdf)"
  "libeigen3-dev|the algebra of fitting readings to a tide (Eigen)"
  "libcli11-dev|reads the command line of the terminal companion, tides (CLI11)"
  "nlohmann-json3-dev|JSON: what tides writes, what the planner remembers (nlohmann-json)"
  "libhowardhinnant-date-dev|the clocks of the world's time zones (Hinnant's date)"
  "tzdata|the rules of those clocks"
  "fonts-liberation|a clear font for a machine that has none"
)
package_packages=(
  "dpkg-dev|finds the packages that a package depends on"
  "file|tells it which files are programs"
)
test_packages=(
  "libgtest-dev|the test framework (GoogleTest)"
  "libbenchmark-dev|the timings (Google Benchmark)"
  "clang-format|checks the source's layout"
  "poppler-utils|reads the printed pages back as text"
  "lintian|checks the Debian package against Debian's rules"
  "desktop-file-utils|checks the menu entry"
  "appstream|checks what software centres show"
  "man-db|checks the manual pages"
)

case "${1:-run}" in
  run) wanted=("${run_packages[@]}") ;;
  package) wanted=("${run_packages[@]}" "${package_packages[@]}") ;;
  test) wanted=("${run_packages[@]}" "${package_packages[@]}" "${test_packages[@]}") ;;
  *) echo "setup.sh: say 'run', 'package' or 'test'" >&2; exit 2 ;;
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
