#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Makes a release, without tests and files, of a copy of the sources: no place keeps the version of before, and what
# must not be released is refused.
#
#   check_release.sh ROOT

set -euo pipefail
root=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "check_release.sh: $*" >&2; exit 1; }
# refused VERSION REASON WHAT
refused() {
    if scripts/release.sh "$1" --prepare 2> "$work/refusal"; then fail "$3"; fi
    grep --quiet "$2" "$work/refusal" || fail "refused for another reason: $(cat "$work/refusal")"
}

[[ -e $root/.git ]] || { echo "these sources are no clone"; exit 77; }
mkdir "$work/clone"
# As they lie there, changes that aren't committed included.
cd "$root"
git ls-files -z | tar --create --null --files-from=- --ignore-failed-read | tar --extract --directory "$work/clone"
cd "$work/clone"
export GIT_CONFIG_GLOBAL=/dev/null GIT_AUTHOR_NAME=test GIT_AUTHOR_EMAIL=test@vyr.invalid
export GIT_COMMITTER_NAME=test GIT_COMMITTER_EMAIL=test@vyr.invalid
git init --quiet
git add --all
git commit --quiet --message "Begin"

# The first release, whose section is there: it gets its notes, and today's date.
current=$(sed -n 's/^project(vyr VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
before=$(git rev-parse HEAD)
sed -i "s/^## \[$current\] - .*/## [$current] - 2001-02-03/; s/^### Added/- Of the first\n\n&/" CHANGELOG.md
git commit --all --quiet --message "Say something of the first"
scripts/release.sh "$current" --prepare
grep --quiet "^## \[$current\] - $(date --utc +%F)" CHANGELOG.md || fail "the first release keeps another date"
git tag --list --format='%(contents)' "v$current" | grep "Of the first" > /dev/null || fail "its tag has no notes"
git tag --delete "v$current" > /dev/null
git reset --quiet --hard "$before"

sed -i 's/^## \[Unreleased\]$/&\n\n- A line of this test/' CHANGELOG.md
refused 9.8.7 "has changes" "a work tree with changes is released"
git commit --all --quiet --message "Go on"
refused "$current" "something under" "a line is left unreleased"
refused 0.0.1 "does not come behind" "an older version is released"

scripts/release.sh 9.8.7 --prepare
[[ -z $(git status --porcelain) ]] || fail "changes are left behind"
[[ $(git describe) == v9.8.7 ]] || fail "the commit has no tag"
git tag --list --format='%(contents)' v9.8.7 | grep "A line of this test" > /dev/null || fail "the tag has no notes"
# Every place that a version is written in: the changelog alone may still name the former one.
left=$(git grep --fixed-strings --line-number -e "VERSION $current" -e "\"$current\"" -e "vyr ${current%.*} " \
    -e "libvyr${current%.*}" -e "libvyr.so.${current%.*}" -- ':!CHANGELOG.md' ':!tests' || true)
[[ -z $left ]] || fail "the former version is left:"$'\n'"$left"
[[ $(sed -n '/^## \[Unreleased\]/,/^## \[9/{/^## /d;/./p}' CHANGELOG.md) == "" ]] || fail "notes stay unreleased"
refused 9.8.8 "nothing under" "a release without notes is made"
echo "released 9.8.7 from $current"
