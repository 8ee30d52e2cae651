#!/bin/sh
# Measures the start of the program and the commands on large documents, each beside the bare
# component, on a virtual display.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/tools/setup.sh"

install_packages $BUILD_PACKAGES libbenchmark-dev hyperfine time xvfb xauth
build bench start_bare start_tagsmith document_bench dialogs_bench generators_bench sitetools_bench
bin="$root/build/bench/bin"
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home" XDG_RUNTIME_DIR="$home"

xvfb-run -a -s "-screen 0 1280x960x24" sh -eu -c "
    hyperfine -N --warmup 5 --runs 40 '$bin/start_bare $bin/Template.html' '$bin/start_tagsmith'
    for program in '$bin/start_bare $bin/Template.html' '$bin/start_tagsmith'; do
        /usr/bin/time -f 'resident at first paint: %M KiB' \$program
    done
    '$bin/document_bench' --benchmark_min_time=0.5 --benchmark_out='$home/document.json'
    '$bin/dialogs_bench' --benchmark_min_time=0.2
    '$bin/generators_bench' --benchmark_min_time=0.2
    '$bin/sitetools_bench' --benchmark_min_time=0.2"

# Each command's time over the bare component's, at the largest size.
echo "ratio to the bare component:"
tr -d '" ,' <"$home/document.json" | awk -F: '
    $1 == "name" { name = $2 }
    $1 == "real_time" { time[name] = $2 }
    END {
        for (name in time) {
            split(name, part, "/")
            bare = part[1] "Bare/" part[2]
            if (bare in time) printf "%-24s %8.2f ms %8.2f\n", name, time[name], time[name] / time[bare]
        }
    }' | sort -t/ -k1,1 -k2,2n
