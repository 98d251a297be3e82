#!/usr/bin/env bash
# compare_archives.sh FILES_TOOL [FOLDER]: packing, unpacking, emptying and the trash beside the programs that do the same
# work, in pairs that take turns. FOLDER (default: a temporary one) is where the files lie. Prints, for each work, the
# median of five rounds of user and system time together, and of elapsed time, in seconds.
set -euo pipefail
tool=$(realpath "${1:?usage: compare_archives.sh FILES_TOOL [FOLDER]}")
work=$(mktemp -d -p "${2:-${TMPDIR:-/tmp}}")
trap 'rm -rf "$work"' EXIT
export XDG_DATA_HOME="$work/data"
mkdir "$XDG_DATA_HOME"
cd "$work"

python3 - <<'PYTHON'
import array, os, random
random.seed(1)
os.makedirs("big"); os.makedirs("small"); os.makedirs("many")
words = [bytes(random.choices(b"abcdefghijklmnopqrstuvwxyz", k=random.randint(2, 9))) for _ in range(3000)]
for i in range(10):  # photographs: no longer compressible
    open(f"big/photo{i}.jpg", "wb").write(random.randbytes(8 << 20))
    open(f"big/text{i}.txt", "wb").write(b" ".join(random.choices(words, k=1 << 20))[:6 << 20])
for i in range(3):  # raw data: a slow ramp with noise in the low bits
    open(f"big/raw{i}.raw", "wb").write(
        array.array("H", ((j >> 6) + random.getrandbits(5) & 0x3FFF for j in range(10 << 20))).tobytes())
for folder, count in (("small", 20000), ("many", 50000)):
    for i in range(count):
        open(f"{folder}/f{i:05}.txt", "wb").write(b" ".join(random.choices(words, k=random.randint(50, 400))))
PYTHON

make_tree() {
    python3 - "$1" <<'PYTHON'
import os, sys
for d in range(500):
    os.makedirs(f"{sys.argv[1]}/{d}")
    for i in range(100):
        open(f"{sys.argv[1]}/{d}/{i}", "wb").write(b"x")
PYTHON
}

# measure NAME COMMAND...: adds "cpu elapsed" to the file NAME.times
measure() {
    local name=$1 TIMEFORMAT='%U %S %R'
    shift
    # gio refuses the trash of file systems in memory, so FOLDER has to be on a disk.
    { time "$@" >/dev/null 2>"$name.errors" || touch failed; } 2>&1 | awk '{ print $1 + $2, $3 }' >>"$name.times"
    if [ -e failed ]; then
        echo "compare_archives: failed: ${*:1:3} ... ($(head -n 1 "$name.errors"))" >&2
        exit 1
    fi
}

median() {
    cut -d' ' -f"$2" "$1.times" | sort -n | sed -n 3p
}

report() {
    printf '%-24s' "$1"
    shift
    for name in "$@"; do
        printf '  %s %s cpu %s elapsed' "$name" "$(median "$name" 1)" "$(median "$name" 2)"
        rm "$name.times"
    done
    printf '\n'
}

for kind in big small many; do
    for _ in 1 2 3 4 5; do
        rm -f ./*.zip
        measure ours "$tool" pack ours.zip "$kind"
        measure zip zip -q -6 -r zip.zip "$kind"
        measure JlCompress "$tool" jlpack jl.zip "$kind"
        measure bsdtar bsdtar -a -cf bsdtar.zip "$kind"
        measure 7z 7z a -bd -tzip 7z.zip "$kind"
    done
    report "pack, $kind" ours zip JlCompress bsdtar 7z
    for _ in 1 2 3 4 5; do
        rm -rf out
        mkdir out
        measure ours "$tool" unpack ours.zip out/ours
        measure unzip unzip -q ours.zip -d out/unzip
        measure JlCompress "$tool" jlunpack ours.zip out/jl
        mkdir out/bsdtar
        measure bsdtar bsdtar -xf ours.zip -C out/bsdtar
        measure 7z 7z x -bd -oout/7z ours.zip
    done
    report "unpack, $kind" ours unzip JlCompress bsdtar 7z
done
rm -rf out
for _ in 1 2 3 4 5; do
    make_tree tree
    measure ours "$tool" empty tree
    rm -rf tree
    make_tree tree
    measure find find tree -mindepth 1 -delete
    rm -rf tree
    make_tree tree
    measure removeRecursively "$tool" qtempty tree
    rm -rf tree
done
report "empty 50,000 files" ours find removeRecursively
for _ in 1 2 3 4 5; do
    rm -rf data/Trash few
    mkdir few
    cp small/f05* few # 1,000 files
    cp -r few again
    measure ours "$tool" trash few
    rm -rf data/Trash
    measure gio gio trash again/*
    rm -rf again
done
report "trash 1,000 files" ours gio
