#!/usr/bin/env bash
# Installs the Debian packages into a bare system, builds the programs of the guide there and runs them.
set -euo pipefail
tree=$(cd "$(dirname "$0")/../.." && pwd)

if [ $# -ne 1 ] || [ "$1" = --help ] || [ "$1" = -h ]; then
    cat <<'TEXT'
Usage: tools/release/try_debian.sh FOLDER

Makes two bare systems from the machine's own package configuration. The first gets the run-time package of FOLDER, the
second the development package and a compiler as well. The programs of examples/ are built in the second with nothing but
what is installed there, and run in the first.
Exit code 77: this needs root, the right to mount, and mmdebstrap.
TEXT
    exit 2
fi
if [ "$(id -u)" -ne 0 ] || ! unshare --mount true || ! command -v mmdebstrap >/dev/null; then
    echo "try_debian: a bare Debian needs root, the right to mount, and mmdebstrap" >&2
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/packages"
cp "$1"/*.deb "$work/packages/"
export WORK=$work TREE=$tree

# shellcheck disable=SC2016 # apt-get replaces the names
apt-get indextargets --format \
    'deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' | sort -u >"$work/sources.list"

# The hooks run outside of the new system, whose folder is their first argument, with the machine's package configuration.
cat >"$work/install" <<'HOOK'
set -eu
root=$1
shift
APT_CONFIG=$MMDEBSTRAP_APT_CONFIG apt-get install --yes --no-install-recommends -oDPkg::Chroot-Directory="$root" "$@"
HOOK
cat >"$work/fill" <<'HOOK'
set -eu
root=$1
cp -r "$WORK/packages" "$root/packages"
sh "$WORK/install" "$root" "$root"/packages/libutilsdlltrelioframe[0-9]_*.deb
cp -a --one-file-system "$root" "$WORK/bare"
sh "$WORK/install" "$root" "$root"/packages/libutilsdlltrelioframe-dev_*.deb g++ cmake ninja-build qttools5-dev-tools
cp -r "$TREE/examples" "$root/examples"
chroot "$root" cmake -S /examples -B /host -G Ninja -DCMAKE_BUILD_TYPE=Release
chroot "$root" cmake --build /host
mkdir "$WORK/bare/host"
find "$root/host" -maxdepth 1 -type f -perm -u+x ! -name '*.dll' ! -name '*.so*' -exec cp {} "$WORK/bare/host" \;
HOOK
mmdebstrap --mode=root --variant=minbase --skip=cleanup/apt --customize-hook="sh $work/fill \"\$1\"" \
    --format=null "" - "$work/sources.list" >"$work/log" 2>&1 || { tail -n 40 "$work/log" >&2; exit 1; }

# The icons are SVG images; a program runs without them, so the plug-ins are looked for.
for plugin in iconengines/libqsvgicon imageformats/libqsvg; do
    compgen -G "$work/bare/usr/lib/*/qt5/plugins/$plugin.so" >"$work/output" ||
        { echo "try_debian: Qt's plug-in $plugin is not installed" >&2; exit 1; }
done
count=0
for program in "$work"/bare/host/*; do
    timeout 60 chroot "$work/bare" env -i HOME=/root PATH=/usr/bin:/bin QT_QPA_PLATFORM=offscreen \
        "/host/$(basename "$program")" >"$work/output" 2>&1 ||
        { cat "$work/output" >&2; echo "try_debian: $(basename "$program") failed" >&2; exit 1; }
    count=$((count + 1))
done
[ "$count" -gt 0 ] || { echo "try_debian: no program was built" >&2; exit 1; }
echo "== $count programs of the guide ran in a bare Debian"
