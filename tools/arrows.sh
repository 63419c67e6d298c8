#!/usr/bin/env bash
# Holds every include of src, tools and tests against the arrows that the build declares under LINKS: a file may include
# from its own target and from those that it links, directly or through others, and no target may link itself. A folder's
# windows (frm*, form1) are a target of their own. Prints each include that breaks this; its status is 1 then.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

{
  find src tools tests -name CMakeLists.txt | sort | xargs awk '{ print "cmake", FILENAME, $0 }'
  find src tools tests -name '*.cpp' -o -name '*.h' | sort | xargs awk '/^#include "/ { split($0, part, "\""); print "include", FILENAME, FNR, part[2] }'
} | awk '
  function folderof(path) { sub(/\/[^\/]*$/, "", path); return path }
  function iswindow(path) { sub(/.*\//, "", path); return path ~ /^(frm|form1)/ }
  function targetof(path,   folder) {  # of a path below src
    folder = folderof(path)
    gsub(/\//, "_", folder)  # "platform/qt"
    return iswindow(path) ? folder "_windows" : folder
  }
  function reach(from, to,   next_, list, n, i) {
    if ((from, to) in known) return known[from, to]
    known[from, to] = 0
    n = split(links[from], list, " ")
    for (i = 1; i <= n; i++) if (list[i] == to || reach(list[i], to)) { known[from, to] = 1; break }
    return known[from, to]
  }
  $1 == "cmake" {
    folder = folderof($2)
    line = $0; sub(/^cmake [^ ]+ /, "", line); sub(/#.*/, "", line)
    if (line ~ /tarvane_library\(|tarvane_test\(|add_executable\(|target_link_libraries\(/) {
      library = line ~ /tarvane_library/
      sub(/.*\(/, "", line); current[folder] = ""
    }
    count = split(line, word, /[ ()]+/)
    for (i = 1; i <= count; i++) {
      if (word[i] == "") continue
      if (current[folder] == "" && folder ~ /^src\//) { current[folder] = word[i]; targets[word[i]] = 1 }
      if (current[folder] == "") {  # outside src a folder counts as one target
        current[folder] = folder
        if (library) links[word[i]] = folder
      }
      if (word[i] ~ /^tarvane::/) links[current[folder]] = links[current[folder]] " " substr(word[i], 10)
    }
    if (folder ~ /^src\// && line ~ /\)/) current[folder] = ""
  }
  $1 == "include" { file[++includes] = $2; number[includes] = $3; wanted[includes] = $4 }
  END {
    for (name in targets) if (reach(name, name)) { print name ": links itself through what it links"; bad = 1 }
    for (i = 1; i <= includes; i++) {
      if (wanted[i] !~ /\//) continue
      to = targetof(wanted[i])
      if (!(to in targets)) continue
      if (file[i] ~ /^src\//) {
        from = targetof(substr(file[i], 5))
        if (file[i] ~ /\/main\.cpp$/) from = "tarvane"
      } else {
        from = folderof(file[i])
      }
      checked++
      if (from != to && !reach(from, to)) {
        print file[i] ":" number[i] ": " from " does not link " to " (\"" wanted[i] "\")"; bad = 1
      }
    }
    if (checked < 100) { print "only " checked " includes were found: the check itself is broken"; bad = 1 }
    exit bad
  }'
