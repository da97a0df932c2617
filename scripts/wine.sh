#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Runs a Windows program under wine, for CTest and by hand, once scripts/windows.sh has made what that needs.
#
#   scripts/wine.sh 32|64 PROGRAM [ARGUMENT...]
#   scripts/wine.sh 32|64 --session COMMAND [ARGUMENT...]    a command of this system, in which all programs find wine
#                                                            running: much faster for more than one
#
# All of it happens in a mount namespace of its own, so that no mount outlives it. Programs of 32 bits run in a Debian
# of that width, which sees this folder under its own path. In both, build/windows/full-disk is a disk of 64 KiB.

set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
bits=$1
shift
home=$root/build/windows
guest=$home/debian-i386

if [[ ${VYR_WINE_SESSION:-} == "$bits" ]]; then
    session=true
elif [[ ${VYR_WINE_NAMESPACE:-} != "$bits" ]]; then
    [[ -d $home/wine$bits ]] || { echo "wine.sh: run 'scripts/windows.sh $bits test' first" >&2; exit 1; }
    as_root=()
    [[ $(id -u) -eq 0 ]] || as_root=(--map-root-user)
    # One at a time: the end of a session ends wine, and with it, without a word, what another one runs in it.
    exec env VYR_WINE_NAMESPACE="$bits" flock --close "$home/wine$bits.lock" \
        unshare --mount "${as_root[@]}" "$0" "$bits" "$@"
else
    session=false
    mkdir -p "$home/full-disk"
    mount -t tmpfs -o size=64k tmpfs "$home/full-disk"
    if [[ $bits == 32 ]]; then
        mkdir -p "$guest$root"
        mount --rbind "$root" "$guest$root"
        mount --rbind /dev "$guest/dev"
        mount --rbind /proc "$guest/proc"
    fi
fi

export WINEPREFIX=$home/wine$bits WINEARCH=win$bits WINEDEBUG=${WINEDEBUG:--all} LC_ALL=C.UTF-8
# No questions about what wine would like to download.
export WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY
# Where the DLLs of a build lie.
export WINEPATH=Z:$root/build/windows$bits/bin
# The usual script says each time that the other width is missing.
wine=wine
[[ $bits == 32 || ! -x /usr/lib/wine/wine64 ]] || wine=/usr/lib/wine/wine64

# in_guest COMMAND...: where the programs run.
in_guest() {
    if [[ $bits == 32 ]]; then
        # shellcheck disable=SC2016  # for the shell in there
        chroot "$guest" /bin/sh -c 'cd "$1" && shift && exec "$@"' - "$PWD" "$@"
    else
        "$@"
    fi
}

if [[ $session == true ]]; then
    in_guest "$wine" "$@"
    exit
fi
# wine's own processes are started here, with no output: they outlive the program and would hold its pipe open. Nor may
# they end while no program runs, or the next one starts them anew; minutes later they do, for sessions that are killed.
trap 'in_guest wineserver --kill > /dev/null 2>&1 < /dev/null || true' EXIT
in_guest wineserver --persistent=300 > /dev/null 2>&1 < /dev/null || true
in_guest "$wine" wineboot > /dev/null 2>&1 < /dev/null
code=0
if [[ ${1:-} == --session ]]; then
    shift
    VYR_WINE_SESSION=$bits "$@" || code=$?
else
    in_guest "$wine" "$@" || code=$?
fi
exit "$code"
