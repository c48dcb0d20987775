#!/bin/sh
# Starts Zarvelia for the user who calls it.
#
# The program opens the catalogue that lies in its own folder, so each user gets a folder of their own with both. The
# program in it is a copy of the installed one: a symbolic link is resolved before the program learns where it lies, and
# a hard link crosses no file systems and may not be made to a file of root. Each start compares the two, so the copy
# follows every upgrade. An empty catalogue is made where there is none; one that is there is never touched.
set -u

data=${XDG_DATA_HOME-}
case $data in
/*) ;;
*) data=${HOME-}/.local/share ;; # a relative XDG_DATA_HOME is void
esac
folder=$data/zarvelia
root=$(readlink -f -- "$0")
root=${root%/bin/*}
program=$root/lib/zarvelia/zarvelia

# Started from a menu nobody sees the error channel, so there the words also come in a window, if something can show one.
fail() {
    printf 'Zarvelia: %s\n' "$1" >&2
    if [ -t 2 ] || [ -z "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
        exit 1
    elif command -v zenity >/dev/null; then
        zenity --error --no-markup --title=Zarvelia --text="$1"
    elif command -v kdialog >/dev/null; then
        kdialog --title Zarvelia --error "$1"
    elif command -v xmessage >/dev/null; then
        xmessage -center -title Zarvelia "$1"
    fi
    exit 1
}

renew_program() {
    cmp -s -- "$program" "$folder/zarvelia" && return
    # A running program keeps the file that it was started from.
    cp -f -- "$program" "$folder/.zarvelia.new" && mv -fT -- "$folder/.zarvelia.new" "$folder/zarvelia" && return
    rm -f -- "$folder/.zarvelia.new"
    return 1
}

make_catalogue() {
    if [ -e "$folder/DataZV.mdb" ] || [ -L "$folder/DataZV.mdb" ]; then
        return 0
    elif [ -e "$folder/ZVTemp.mdb" ]; then # a compaction was cut off between its last two steps
        echo "DataZV.mdb is missing, and ZVTemp.mdb holds its compacted copy. Rename it to DataZV.mdb."
        return 1
    fi
    "$root/bin/zarvelia-tool" new "$folder"
}

# Called in a process of its own, with whose end the lock is given back.
prepare() {
    mkdir -p -- "$folder" || return
    exec 9>"$folder/.lock" || return
    if ! flock -w 60 9; then
        echo "Another start of Zarvelia does not come to its end."
        return 1
    fi
    renew_program && make_catalogue
}

[ "$data" != /.local/share ] || fail "HOME is not set, so there is no place for a catalogue."
why=$(prepare 2>&1) || fail "The folder of your catalogue, $folder, could not be made ready.

$why"
[ -x "$folder/zarvelia" ] || fail "$folder lies on a disk from which no program may be started. \
Set XDG_DATA_HOME to a folder on another disk."
exec "$folder/zarvelia" "$@"
