#!/usr/bin/env bash
# check-package.sh [FOLDER]: the whole life of the Debian package on this machine, as root. Builds it from a
# copy of these sources, has lintian look at it, installs it, plays a game, purges it, and compares what
# files there are before and after. The package and pictures of the screen stay in the folder.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$(realpath -m "${1:-$root/build/check-package}")
[ "$(id -u)" -eq 0 ] || { echo "This installs and removes a package, so it wants root." >&2; exit 1; }
export DEBIAN_FRONTEND=noninteractive
step() { echo "== $*"; }
fail() {
    echo "check-package: $1" >&2
    exit 1
}

step "What it needs"
source "$root/tools/dependencies.sh"
install_dependencies "$root"
apt-get install -y -qq --no-install-recommends lintian man-db git >/dev/null

step "Build from a copy, which must be as clean after it"
rm -rf "$folder"
mkdir -p "$folder/copy"
(cd "$root" && git ls-files -co --exclude-standard -z | xargs -0 cp --parents -t "$folder/copy")
cd "$folder/copy"
git init -q && git add -A && git -c user.name=copy -c user.email=copy commit -qm copy
dpkg-buildpackage -us -uc >"$folder/build.log" 2>&1 || { tail -30 "$folder/build.log"; fail "no package"; }
[ -z "$(git status --porcelain)" ] || fail "the build leaves $(git status --porcelain)"
cp tools/try-installed.sh tools/on-virtual-display.sh "$folder"
cd /
rm -rf "$folder/copy" # nothing that is installed may need it
package=$(ls "$folder"/varnello_*_"$(dpkg --print-architecture)".deb)
dpkg-deb -c "$package" | awk '{print $1, $3, $6, $7, $8}'

step "lintian"
lintian --display-info --pedantic --show-overrides --fail-on error,warning "$folder"/varnello_*.changes

step "Install"
files() {
    find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /run -o -path /tmp -o -path /var/tmp \
        -o -path /var/log -o -path "$folder" -o -path "$root" \) -prune -o -print | LC_ALL=C sort
}
apt-get satisfy -y -qq --no-install-recommends "$(dpkg-deb -f "$package" Depends)" >/dev/null
files >"$folder/before"
apt-get install -y -qq --no-install-recommends "$package" >/dev/null
[ "$(command -v varnello)" ] || PATH=$PATH:/usr/games # it is on the path of users, seldom on root's
varnello --version
desktop-file-validate /usr/share/applications/varnello.desktop
appstreamcli validate --no-net /usr/share/metainfo/org.varnello.varnello.metainfo.xml
for page in varnello varnello-script; do
    [ -z "$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings "$page" 2>&1 >/dev/null)" ] || fail "man $page"
done

step "Play"
"$folder/try-installed.sh" /usr "$folder/played"

step "Purge"
dpkg -P varnello >/dev/null
files >"$folder/after"
diff "$folder/before" "$folder/after" || fail "these files came (>) or went (<)"
[ -s "$folder/played/data/Varnello/Player1.sre" ] || fail "the player's results are gone"
step "All is well: $package, pictures in $folder/played"
