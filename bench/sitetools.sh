#!/bin/sh
# sitetools.sh [DIR]: sets the site tools, each as a whole process, beside what a user would take
# instead, on generated sites below DIR (in memory unless told otherwise). RTF_FOLDER may name a
# folder of real RTF files to convert as well.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/tools/setup.sh"

install_packages $BUILD_PACKAGES libbenchmark-dev hyperfine python3 perl sed rename convmv tree unrtf
build bench tagsmith_bench_driver
driver="$root/build/bench/bin/tagsmith_bench_driver"
others="$root/bench/others"
place=$(mktemp -d "${1:-/dev/shm}/tagsmith-bench-XXXXXX")
trap 'rm -rf "$place"' EXIT
python3 -B "$root/bench/make_sites.py" "$place"
cd "$place"

# beside TITLE FRESH COMMAND...: times the commands, ours first, each run on a fresh copy of FRESH.
beside() {
    title=$1
    fresh=$2
    shift 2
    echo "== $title"
    hyperfine --shell sh --warmup 1 --runs "${RUNS:-20}" --export-json "$place/times.json" \
        --style none --prepare "rm -rf work && cp -a $fresh work" "$@" >/dev/null
    python3 -B - "$place/times.json" <<'END'
import json, sys
results = json.load(open(sys.argv[1]))["results"]
for result in results:
    name = result["command"].replace(sys.argv[1].rsplit("/", 1)[0], "").split("/")[-1][:60]
    print(f'{result["median"] * 1000:9.1f} ms  x{result["median"] / results[0]["median"]:6.2f}  {name}')
END
}

beside "2,000 files of 8 KB" pages \
    "$driver replace-dir work title Heading" \
    "perl -0777 -pi -e 's/title/Heading/gi' work/*" \
    "sed -i 's/title/Heading/gI' work/*" \
    "perl -pi -e 's/title/Heading/gi' work/*" \
    "python3 -B $others/replace_safely.py work title Heading"

beside "100,000 matches in 999,999 bytes" text.html \
    "$driver replace-file work ABC xyzw" \
    "perl -0777 -pi -e 's/ABC/xyzw/gi' work" \
    "sed -i 's/ABC/xyzw/gI' work"

beside "22,000 names to lower case" names \
    "$driver lowercase work" \
    "python3 -B $others/lowercase.py work" \
    "find work -depth -mindepth 1 | rename 's!([^/]+)\$!lc(\$1)!e'" \
    "convmv --lower -r --notest work >/dev/null 2>&1"

beside "index of 1,000 folders with 20 files" index \
    "$driver index work work/index.html" \
    "python3 -B $others/index.py work work/index.html" \
    "tree -H . -o work/index.html work"

beside "RTF, generated, 10 files of 0.5 MB" rtf \
    "mkdir work/out && $driver rtf-dir work work/out" \
    "mkdir work/out && for f in work/*.rtf; do unrtf --html \$f >work/out/\$(basename \$f).html 2>&1; done"

[ -z "${RTF_FOLDER:-}" ] || beside "RTF, real files" "$RTF_FOLDER" \
    "mkdir work/out && $driver rtf-dir work work/out" \
    "mkdir work/out && for f in work/*.rtf; do unrtf --html \$f >work/out/\$(basename \$f).html 2>&1; done"
