# SPDX-FileCopyrightText: 2026 The BOM developers
# SPDX-License-Identifier: MIT
# Completion of bomviewer for fish. The options are those of --help.
complete -c bomviewer -f
complete -c bomviewer -n 'string match -q -- "-*" (commandline -ct)' \
    -a '(bomviewer --help 2>/dev/null | string replace -rf "^ +(?:-\w, )?(--[a-z-]+)(?: <[^>]+>)? +(.*)" "\$1\t\$2")'
complete -c bomviewer -n 'test (commandline -opc)[-1] = --module' -F
complete -c bomviewer -n 'not string match -q -- "-*" (commandline -ct)' \
    -a '(__fish_complete_suffix .kicad_pro; __fish_complete_suffix .kicad_sch; __fish_complete_suffix .csv)'
