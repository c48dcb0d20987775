#!/usr/bin/env bash
# Makes both packages from a Release build, has Debian's own tools look at them, and uses them as their users would, in
# a scratch folder: nothing is installed. Takes the preset of the build, which is "ci" where none is named.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source cmake/packages.sh

need_packages "${packages_build[@]}" "${packages_packaging[@]}"
built=build/${1-ci}
rm -f "$built"/*.deb "$built"/*.tar.gz
build "${1-ci}" package

scratch=$(realpath "$(mktemp -d)")
trap 'jobs -p | xargs -r kill; wait; rm -rf "$scratch"' EXIT
mkdir "$scratch/system" "$scratch/portable folder" "$scratch/bin"
dpkg-deb -x "$built"/*.deb "$scratch/system"
tar -xzf "$built"/*.tar.gz -C "$scratch/portable folder" --strip-components=1
cmake --install "$built" --prefix "$scratch/prefix with spaces" --component system >"$scratch/words"
system=$scratch/system/usr

# What may not be written to is so for everybody but root, so root plays an ordinary user.
as_user=(env -u XDG_DATA_HOME -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen)
if ((EUID == 0)); then
    chown -R 65534:65534 "$scratch"
    as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups "${as_user[@]}")
fi

fail() {
    echo "FAILED: $*" >&2
    [[ ! -s $scratch/words ]] || sed 's/^/  /' "$scratch/words" >&2
    exit 1
}

# start FOLDER COMMAND...: starts the program and waits until the one in that folder has the catalogue in it open. Leaves
# its process in $pid.
start() {
    local folder=$1
    shift
    "${as_user[@]}" "$@" </dev/null &>"$scratch/words" &
    pid=$!
    is_open "$folder"
}

# is_open FOLDER: waits until process $pid is the program in that folder with the catalogue in it open.
is_open() {
    for ((i = 0; i < 300; ++i)); do
        grep -qxF "$1/DataZV.mdb" < <(readlink "/proc/$pid/fd/"* 2>/dev/null) && break
        kill -0 "$pid" 2>/dev/null || fail "The program of $1 ended before it had opened its catalogue"
        sleep 0.1
    done
    ((i < 300)) || fail "The program of $1 does not open its catalogue"
    [[ $(readlink "/proc/$pid/exe") == "$1/zarvelia" ]] || fail "Another program than that of $1 was started"
}

stop() {
    kill "$pid"
    wait "$pid" 2>/dev/null || true
}

# refuses WORDS COMMAND...: the start ends by itself with status 1, and those words are among what it says.
refuses() {
    local words=$1 status=0
    shift
    timeout 60 "${as_user[@]}" "$@" </dev/null &>"$scratch/words" || status=$?
    ((status == 1)) || fail "Status $status instead of a refusal: $words"
    grep -qF "$words" "$scratch/words" || fail "Not said: $words"
}

# new_home NAME: an ordinary user's home, its catalogue's folder in $folder.
new_home() {
    home=$scratch/$1
    folder=$home/.local/share/zarvelia
    "${as_user[@]}" mkdir "$home"
}

traces() { stat -c '%i %s %Y' "$1" && sha256sum <"$1"; }

files_are_sound() {
    desktop-file-validate "$system"/share/applications/*.desktop
    appstreamcli validate --no-net "$system"/share/metainfo/*.xml
    mandoc -Tlint -Wwarning packaging/*.1
    lintian --allow-root --fail-on error,warning "$built"/*.deb
    local icon size version
    for icon in "$system"/share/icons/hicolor/*/apps/*.png; do
        size=$(basename "${icon%/apps/*}")
        [[ $(file "$icon") == *"PNG image data, ${size/x/ x }, "* ]] || fail "$icon is not of its size"
    done
    version=$(dpkg-deb -f "$built"/*.deb Version)
    [[ $(dpkg-parsechangelog -l packaging/changelog -S Version) == "$version" ]] || fail "changelog: not $version"
    grep -qF "<release version=\"$version\"" packaging/*.metainfo.xml || fail "AppStream: not $version"
}

# A link of the manual that leads nowhere in the package would lead nowhere for the reader.
manual_is_whole() {
    local manual page link
    [[ -d docs/manual ]] || return 0
    for manual in "$system/share/doc/zarvelia/manual" "$scratch/portable folder/manual"; do
        find "$manual" -name '*.md' -print0 | while read -r -d '' page; do
            { grep -oP '\]\(\K[^)#]+' "$page" || true; } | while read -r link; do
                [[ $link == *://* || $link == mailto:* || -e $(dirname "$page")/$link ]] || fail "$page: $link is missing"
            done
        done
    done
}

first_start_makes_the_catalogue() {
    new_home "Ana María's home"
    start "$folder" env HOME="$home" "$system/bin/zarvelia"
    stop
    local before
    touch -d 2001-01-01 "$folder/DataZV.mdb"
    before=$(traces "$folder/DataZV.mdb")
    start "$folder" env HOME="$home" "$system/bin/zarvelia"
    stop
    [[ $(traces "$folder/DataZV.mdb") == "$before" ]] || fail "The second start changed the catalogue"
}

an_upgrade_replaces_the_program_only() {
    new_home upgraded
    start "$folder" env HOME="$home" "$system/bin/zarvelia"
    local before old=$pid
    touch -d 2001-01-01 "$folder/DataZV.mdb"
    before=$(traces "$folder/DataZV.mdb")
    cp -r "$scratch/system" "$scratch/upgrade"
    echo newer >>"$scratch/upgrade/usr/lib/zarvelia/zarvelia"
    echo "cut off" >"$folder/.zarvelia.new" # what an interrupted start left
    start "$folder" env HOME="$home" "$scratch/upgrade/usr/bin/zarvelia"
    cmp "$folder/zarvelia" "$scratch/upgrade/usr/lib/zarvelia/zarvelia" || fail "The copy was not renewed"
    kill -0 "$old" || fail "The running program did not outlive the upgrade"
    stop
    pid=$old
    stop
    [[ $(traces "$folder/DataZV.mdb") == "$before" ]] || fail "The upgrade changed the catalogue"
}

starts_at_the_same_time_agree() {
    new_home together
    local pids=()
    for _ in 1 2 3 4; do
        "${as_user[@]}" env HOME="$home" "$system/bin/zarvelia" </dev/null &>>"$scratch/words" &
        pids+=($!)
    done
    for pid in "${pids[@]}"; do is_open "$folder"; done
    for pid in "${pids[@]}"; do stop; done
    local left
    left=$(cd "$folder" && find . -type f | sort | xargs)
    [[ $left == "./.lock ./DataZV.mdb ./zarvelia" ]] || fail "They left $left"
}

failures_are_told_and_leave_nothing() {
    new_home locked
    chmod 555 "$home"
    refuses "$home/.local" env HOME="$home" "$system/bin/zarvelia"
    # From a menu, the words come in a window.
    printf '#!/bin/sh\necho "$@" >"%s/window"\n' "$scratch" >"$scratch/bin/zenity"
    chmod +x "$scratch/bin/zenity"
    refuses "Permission denied" env HOME="$home" DISPLAY=:none PATH="$scratch/bin:$PATH" "$system/bin/zarvelia"
    grep -q "Permission denied" "$scratch/window" || fail "No window told that the home may not be written to"
    refuses "HOME is not set" env -u HOME "$system/bin/zarvelia"

    new_home full
    (ulimit -f 100 && refuses "could not be made ready" env HOME="$home" "$system/bin/zarvelia")
    [[ $(ls "$folder") == "" && ! -e $folder/.zarvelia.new ]] || fail "A half-made copy was left: $(ls -A "$folder")"
    start "$folder" env HOME="$home" "$system/bin/zarvelia"
    stop
    mv "$folder/DataZV.mdb" "$folder/ZVTemp.mdb"
    refuses "Rename it to DataZV.mdb" env HOME="$home" "$system/bin/zarvelia"
    [[ ! -e $folder/DataZV.mdb ]] || fail "An empty catalogue was made beside the compacted one"
}

other_places() {
    new_home elsewhere
    local disk="$scratch/other disk" name
    "${as_user[@]}" mkdir "$disk"
    start "$disk/zarvelia" env HOME="$home" XDG_DATA_HOME="$disk" "$system/bin/zarvelia"
    stop
    start "$folder" env HOME="$home" XDG_DATA_HOME=relative "$scratch/prefix with spaces/bin/zarvelia"
    stop
    start "$scratch/portable folder" "$scratch/portable folder/zarvelia"
    stop
    # Whoever uses the portable folder installs by hand what the Debian package depends on.
    for name in $(dpkg-deb -f "$built"/*.deb Depends | tr ',' '\n' | cut -d'(' -f1); do
        case $name in libc6 | libgcc-s1 | libstdc++6 | libqt6core6 | libqt6gui6) continue ;; esac
        grep -qwF "$name" "$scratch/portable folder/README.txt" || fail "README.txt does not name $name"
    done
}

for part in files_are_sound manual_is_whole first_start_makes_the_catalogue an_upgrade_replaces_the_program_only \
    starts_at_the_same_time_agree failures_are_told_and_leave_nothing other_places; do
    "$part"
    echo "ok: ${part//_/ }"
    : >"$scratch/words"
done
