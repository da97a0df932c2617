# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
# Completion of the command vyr for fish.

set -l commands check info list convert json diff codes show
complete -c vyr -f
complete -c vyr -s h -l help -d 'Print help'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -l version -d 'Print the version'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -a check -d 'Validate documents, say what is wrong and where'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -a info -d 'Say what a document holds'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -a list -d 'List the colours of a document'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -a convert -d 'Write a document as a plain one or as a container'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -a json -d 'Print documents as JSON'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -a diff -d 'Say in what two documents differ'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -a codes -d 'List the result codes'
complete -c vyr -n "not __fish_seen_subcommand_from $commands" -a show -d 'Make a page of a document'

complete -c vyr -n '__fish_seen_subcommand_from check info list convert json diff show' -k -a '(__fish_complete_suffix .vyr)'
complete -c vyr -n '__fish_seen_subcommand_from check' -s j -l jobs -x -d 'Check N files at a time'
complete -c vyr -n '__fish_seen_subcommand_from check' -l limit -x -d 'Report at most N faults of a file'
complete -c vyr -n '__fish_seen_subcommand_from check' -l ignore -x -a 'all not-well-formed schema unsavable duplicate-id wavelengths limits date' -d 'Leave out such warnings'
complete -c vyr -n '__fish_seen_subcommand_from check' -l strict -d 'Warnings are failures'
complete -c vyr -n '__fish_seen_subcommand_from check' -s q -l quiet -d 'Print nothing'
complete -c vyr -n '__fish_seen_subcommand_from check' -l json -d 'Print JSON'
complete -c vyr -n '__fish_seen_subcommand_from info' -l depth -x -d 'Count elements down to this level'
complete -c vyr -n '__fish_seen_subcommand_from info' -l json -d 'Print JSON'
complete -c vyr -n '__fish_seen_subcommand_from list' -l palette -x -d 'Only colours of such palettes'
complete -c vyr -n '__fish_seen_subcommand_from list' -l set -x -d 'Only colours of such sets'
complete -c vyr -n '__fish_seen_subcommand_from list' -l name -x -d 'Only colours with such a name'
complete -c vyr -n '__fish_seen_subcommand_from list' -l color -x -a 'auto always never' -d 'Colours in the output'
complete -c vyr -n '__fish_seen_subcommand_from list' -l json -d 'Print JSON'
complete -c vyr -n '__fish_seen_subcommand_from list' -l csv -d 'Print a table for spreadsheets'
complete -c vyr -n '__fish_seen_subcommand_from convert' -l to -x -a 'vyr vyrz json' -d 'Write this format'
complete -c vyr -n '__fish_seen_subcommand_from convert' -l ignore -x -a 'all comments instructions doctype hints digits' -d 'Leave out such warnings'
complete -c vyr -n '__fish_seen_subcommand_from diff' -l color -x -a 'auto always never' -d 'Colours in the output'
complete -c vyr -n '__fish_seen_subcommand_from diff' -s q -l quiet -d 'Print nothing'
complete -c vyr -n '__fish_seen_subcommand_from diff' -l json -d 'Print JSON'
complete -c vyr -n '__fish_seen_subcommand_from codes' -l json -d 'Print JSON'
complete -c vyr -n '__fish_seen_subcommand_from show' -s o -l output -r -F -d 'Where to put the page'
