# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Completes the words of kestrill-restore, -export, -import and -check in bash; installed under each of the names.

# The folder of each earlier backup is its name; kestrill-restore --list would read all of them first.
_kestrill_backups() {
    local data=${XDG_DATA_HOME:-} folder
    [[ $data == /* ]] || data=$HOME/.local/share
    echo last
    for folder in "$data"/KTL-backups/*/; do
        [ ! -d "$folder" ] || basename "$folder"
    done
}

_kestrill() {
    local word=$2 before=$3 options files=
    case ${1##*/} in
    kestrill-restore) options="--list --restore --yes" ;;
    kestrill-export) options="--force --from" files=-d ;;
    kestrill-import)
        options="--dry-run --map --set --dates --decimal --cut --again --skip-wrong --yes --template" files=-f ;;
    kestrill-check) options=$(_kestrill_backups) files=-f ;;
    *) return ;;
    esac
    case $before in
    --restore) options=$(_kestrill_backups) files= ;;
    --from) options=$(_kestrill_backups) files=-f ;;
    --dates) options="mdy dmy ymd" files= ;;
    --decimal) options="point comma" files= ;;
    --skip-wrong | --template) options='' files=-f ;;
    *) options+=" --help --version" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" ${files:+"$files"} -- "$word")
}

complete -o filenames -F _kestrill kestrill-restore kestrill-export kestrill-import kestrill-check
