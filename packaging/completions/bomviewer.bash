# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
# Completion of bomviewer for bash. The options are those of --help.
_bomviewer() {
    local current=${COMP_WORDS[COMP_CWORD]}
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$("$1" --help 2>/dev/null | grep -oE -- '--[a-z][a-z-]*')" -- "$current")
        return
    fi
    compopt -o filenames 2>/dev/null
    local files='!*.@(kicad_pro|kicad_sch|csv)'
    [[ ${COMP_WORDS[COMP_CWORD-1]} == --module ]] && files='!*.so'
    mapfile -t COMPREPLY < <(compgen -d -- "$current"; shopt -s extglob; compgen -f -X "$files" -- "$current")
}
complete -F _bomviewer bomviewer
