#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Makes a release: sets the version wherever it stands, dates the changelog, tests, and leaves the commit, its tag and
# the files to publish (sources, packages, check sums) in build/release-VERSION. Publishes nothing.
#
#   scripts/release.sh VERSION            from a clean work tree; VERSION such as 0.2.0
#   scripts/release.sh VERSION --prepare  commits and tags only, without a test and without files

set -euo pipefail
cd "$(dirname "$0")/.."

refuse() {
    echo "release.sh: $*" >&2
    exit 1
}

version=${1:-}
is_prepare_only=false
[[ ${2:-} == --prepare ]] && is_prepare_only=true
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ && $# -le 2 && ($# -eq 1 || $is_prepare_only == true) ]] ||
    refuse "say which version: release.sh MAJOR.MINOR.PATCH [--prepare]"
tag=v$version
current=$(sed -n 's/^project(vyr VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
minor=${version%.*}
current_minor=${current%.*}

[[ -z $(git status --porcelain) ]] || refuse "the work tree has changes; commit or remove them first"
git rev-parse --quiet --verify "refs/tags/$tag" > /dev/null && refuse "$tag is there already"
# The first release has the version that the sources are at, and its section may be in the changelog already.
section="\[Unreleased\]"
if [[ $version != "$current" || -n $(git tag --list 'v*') ]]; then
    [[ $version != "$current" && $(printf '%s\n' "$current" "$version" | sort --version-sort | tail -n 1) == "$version" ]] ||
        refuse "$version does not come behind $current"
elif grep --quiet "^## \[$version\]" CHANGELOG.md; then
    section="\[$version\]"
fi
notes_of() { sed -n "/^## $1/,/^## \[[0-9U]/{/^## /d;p}" CHANGELOG.md; }
notes=$(notes_of "$section")
[[ $notes =~ [^[:space:]] ]] || refuse "CHANGELOG.md has nothing under ${section//\\/}"
if [[ $section != *Unreleased* && $(notes_of "\[Unreleased\]") =~ [^[:space:]] ]]; then
    refuse "CHANGELOG.md has something under [Unreleased] beside [$version]"
fi

# Where the version stands: file, and the text around it, once with all three numbers and elsewhere with two.
replace() {
    local file=$1 before=$2 after=$3
    grep --quiet --fixed-strings -- "$before" "$file" || refuse "$file does not say '$before'"
    python3 - "$file" "$before" "$after" << 'EOF'
import pathlib, sys
path, before, after = pathlib.Path(sys.argv[1]), *sys.argv[2:]
path.write_text(path.read_text(encoding="utf-8").replace(before, after), encoding="utf-8")
EOF
}
replace CMakeLists.txt "project(vyr VERSION $current " "project(vyr VERSION $version "
replace vcpkg.json "\"version-semver\": \"$current\"" "\"version-semver\": \"$version\""
replace csharp/Vyr.csproj "<Version>$current</Version>" "<Version>$version</Version>"
replace pyproject.toml "version = \"$current\"" "version = \"$version\""
replace csharp/Vyr.nuspec "<version>$current</version>" "<version>$version</version>"
replace csharp/AssemblyInfo.cs "AssemblyVersion(\"$current.0\")" "AssemblyVersion(\"$version.0\")"
for file in README.md examples/CMakeLists.txt; do
    replace "$file" "find_package(vyr $current_minor REQUIRED)" "find_package(vyr $minor REQUIRED)"
done
replace README.md "libvyr$current_minor" "libvyr$minor"
replace README.md "libvyr.so.$current_minor" "libvyr.so.$minor"
today="## [$version] - $(date --utc +%F)"
if [[ $section == *Unreleased* ]]; then
    replace CHANGELOG.md "## [Unreleased]" "## [Unreleased]

$today"
else
    sed -i "s/^## $section.*/$today/" CHANGELOG.md
fi

# The first release may change nothing, and is a commit all the same.
git commit --all --allow-empty --quiet --message "Release $version"
git tag --annotate "$tag" --message "Vyr $version" --message "$notes"
if $is_prepare_only; then
    echo "committed and tagged: $tag"
    exit 0
fi

undo="git tag --delete $tag && git reset --hard HEAD~1"
scripts/test.sh || refuse "the tests fail; take the commit back with: $undo"
scripts/package.sh || refuse "there are no packages; take the commit back with: $undo"
target=build/release-$version
rm -rf "$target"
mkdir -p "$target"
git archive --prefix="vyr-$version/" --output="$target/vyr-$version.tar.gz" "$tag"
cp build/package/*.deb "$target"
[[ ! -f build/package/csharp/Vyr.dll ]] || scripts/nuget.sh build/package "$target"
(cd "$target" && sha256sum -- * > SHA256SUMS && cat SHA256SUMS)
echo "$tag is ready in $target; publish it with: git push --follow-tags"
