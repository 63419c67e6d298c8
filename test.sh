#!/usr/bin/env bash
# Sets the machine up, checks the source's layout and its arrows, builds everything, runs every test shuffled, and runs the
# toolkit-free tests once more under the address and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/setup.sh test

echo "Layout of the source ..."
find src tools tests -name '*.cpp' -o -name '*.h' | sort | xargs clang-format --dry-run --Werror

echo "Arrows between the folders ..."
tools/arrows.sh

for preset in dev asan; do
  echo "Building '$preset' ..."
  mkdir -p "build/$preset"
  log=build/$preset/build.log
  if ! { { [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"; } && cmake --build --preset "$preset"; } >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    echo "The build failed: all of it stands in $log" >&2
    exit 1
  fi
  ctest --preset "$preset"
done
