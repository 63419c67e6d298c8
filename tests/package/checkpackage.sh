#!/usr/bin/env bash
# Makes a Debian package of a build folder, as it is, and looks whether one could install it and work with it:
# checkpackage.sh BUILD CPACK. Says what is wrong; its status is 1 then.
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$1 cpack=$2

# Ten seconds: not spent again on what was found right the last time.
inputs=$(find "$here" "$here/../../packaging" "$build"/bin/{tarvane,tides,hcbuild,PDF} "$build"/data/*.hc \
  "$build"/{CPackConfig.cmake,packaging/cmake_install.cmake} -type f -exec sha256sum {} + 2>/dev/null | sort)
[ "$inputs" = "$(cat "$build/packaging/foundright" 2>/dev/null)" ] && exit 0

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work/home LC_ALL=C.UTF-8
unset XDG_DATA_HOME XDG_CONFIG_HOME
mkdir "$HOME"
faults=0
fault() { printf '%s\n' "$*"; faults=$((faults + 1)); }

cd "$work" || exit 1
if ! "$cpack" --config "$build/CPackConfig.cmake" -B "$work/packed" >"$work/log" 2>&1; then
  cat "$work/log"
  exit 1
fi
package=$(echo packed/*.deb)
# The slowest look goes on beside the others.
lintian --allow-root --fail-on error,warning "$package" >lintian.txt 2>&1 &
looking=$!

dpkg-deb -x "$package" root
(cd root && find . -type f | sed 's|^\./||' | LC_ALL=C sort) >files.txt
diff "$here/files.txt" files.txt || fault "The package doesn't hold the files above (< missing, > unforeseen)."
version=$(dpkg-deb -f "$package" Version)
[ "$(zcat root/usr/share/doc/*/changelog.gz | sed -n '1s/.*(\(.*\)).*/\1/p')" = "$version" ] ||
  fault "The changelog begins with another version than $version."
[ "$(root/usr/bin/tides --version)" = "Tarvane Tides (v$version)" ] || fault "tides is of another version than $version."
grep -q "<release version=\"$version\"" root/usr/share/metainfo/*.xml || fault "The metainfo doesn't know version $version."
for needed in libc6 libstdc++6 libqt6widgets6 libqt6printsupport6 libqt6pdf6 libqt6svg6 libdate-tz3 tzdata; do
  [[ " $(dpkg-deb -f "$package" Depends)," == *" $needed"[\ ,]* ]] || fault "It doesn't depend on $needed."
done

desktop-file-validate root/usr/share/applications/*.desktop || fault "The menu entry isn't valid."
appstreamcli validate --no-net root/usr/share/metainfo/*.xml >appstream.txt || fault "$(cat appstream.txt)"
for page in root/usr/share/man/man1/*; do
  warnings=$(MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
  [ -z "$warnings" ] || fault "$page: $warnings"
done

completion=root/usr/share/bash-completion/completions/tides
# offeredfor WORDS...: what the completion offers for the last word, "|" behind each.
offeredfor() {
  PATH=$work/root/usr/bin:$PATH bash -c 'source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _tides
    printf "%s|" "${COMPREPLY[@]}"' "$completion" "$@" 2>&1
}

# Every option that the help lists stands in its section of the page, and the completion offers these and no others.
zcat root/usr/share/man/man1/tides.1.gz | sed 's/\\-/-/g' >tides.txt
while IFS='>' read -r subcommand section; do
  root/usr/bin/tides $subcommand --help | sed -n 's/^  \(-h,\)\?\(--[a-z]\+\).*/\2/p' | sort >options.txt
  offeredfor tides $subcommand -- | tr '|' '\n' | sort | diff options.txt - ||
    fault "The completion doesn't offer the options of 'tides $subcommand' (< missing, > unforeseen)."
  awk -v head=".SH $section" '/^\.SH/ { on = $0 == head } on' tides.txt >section.txt
  while read -r option; do
    grep -q -e "$option\b" section.txt || fault "$section in tides.1 doesn't tell of $option."
  done <options.txt
done <<'END'
>OPTIONS
about>ABOUT A PORT
fit>FITTING CONSTANTS
streams>TIDAL STREAMS
END

# The program from where it would lie: the areas come out of the shared folder, and nothing is written.
before=$(find root home | sort)
root/usr/bin/tides --list >list.txt || fault "tides doesn't work from the package."
[ "$(wc -l <list.txt)" -gt 80 ] || fault "tides doesn't list the ports of the package."
root/usr/bin/tides dover --waters | grep -q 'Europe/London' || fault "tides doesn't know the clocks of the package's ports."
[ "$(root/usr/bin/tides all --area all --format csv | cut -d, -f1,2,9 | sort -u | wc -l)" -gt 2300 ] ||
  fault "tides doesn't find the areas of the package."
root/usr/bin/tides about --port honolulu --area all | grep -q 'Pacific/Honolulu' || fault "tides doesn't know Honolulu."
[ "$(find root home | sort)" = "$before" ] || fault "tides made files."

touch mine.hc race.l20 notes.txt
while IFS='>' read -r words wanted; do
  eval "offered=\$(offeredfor $words)"
  [ "$offered" = "$wanted" ] || fault "Completing '$words' offers '$offered', not '$wanted'."
done <<'END'
tides --sa>--samples|
tides fit>fit|
tides about --format j>json|
tides about dov>Dover|
tides --area al>all|
tides --format ''>text|csv|json|ics|
tides fit --format ''>text|csv|json|
tides --clock u>ut|
tides fit --form>--format|
tides fit --near dov>Dover|
tides --port 'le\ h'>Le\ Havre|
tides \"le\ h>Le Havre|
tides --area m>mine.hc|
tides streams --diamond ra>race.l20|
tides --area nowhere.hc --port do>|
END

wait $looking || fault "$(cat lintian.txt)"
[ "$faults" -eq 0 ] && printf '%s\n' "$inputs" >"$build/packaging/foundright"
