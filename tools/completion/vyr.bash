# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
# Completion of the command vyr for bash.

_vyr() {
    local -A options=(
        [vyr]="--version --help -h"
        [check]="--jobs -j --limit --ignore --strict --color --json --quiet -q --help -h"
        [info]="--depth --json --help -h"
        [list]="--palette --set --name --color --json --csv --help -h"
        [convert]="--to --ignore --help -h"
        [import]="--output -o --palette --help -h"
        [json]="--help -h"
        [diff]="--color --json --quiet -q --help -h"
        [codes]="--json --help -h"
        [show]="--output -o --help -h"
    )
    local commands="check info list convert import json diff codes show"
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=vyr i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        if [[ " $commands " == *" ${COMP_WORDS[i]} "* ]]; then
            command=${COMP_WORDS[i]}
            break
        fi
    done
    # `--color=always` arrives as three words.
    if [[ $word == "=" ]]; then
        word=
    elif [[ $before == "=" ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    local words=
    case $before in
        --output | -o)
            compopt -o filenames 2> /dev/null
            mapfile -t COMPREPLY < <(compgen -f -- "$word")
            return
            ;;
        --color) words="auto always never" ;;
        --to) words="vyr vyrz json" ;;
        --ignore)
            words="all not-well-formed schema unsavable duplicate-id wavelengths limits date"
            [[ $command == convert ]] && words="all comments instructions doctype hints digits"
            ;;
        --jobs | -j | --limit | --depth | --palette | --set | --name) return ;;
        *)
            if [[ $word == -* ]]; then
                words=${options[$command]}
            elif [[ $command == vyr ]]; then
                words=$commands
            elif [[ $command != codes ]]; then
                compopt -o filenames 2> /dev/null
                mapfile -t COMPREPLY < <(
                    compgen -d -- "$word"
                    compgen -f -X '!*.vyr' -- "$word"
                    compgen -f -X '!*.vyrz' -- "$word"
                    [[ $command != import ]] || compgen -f -X '!*.csv' -- "$word"
                    [[ $command != convert ]] || compgen -f -X '!*.json' -- "$word"
                )
                return
            fi
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _vyr vyr
