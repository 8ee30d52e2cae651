#!/bin/sh
# run.sh PROGRAMS SECONDS: runs each fuzzer in the folder PROGRAMS for that long, from its corpus, two
# at a time; what they find stays in PROGRAMS.
set -eu
programs=$1
seconds=$2
here=$(cd "$(dirname "$0")" && pwd)

# fuzz NAME SEEDS...
fuzz() {
    name=$1
    shift
    found="$programs/$name-corpus"
    mkdir -p "$found"
    "$programs/${name}_fuzzer" -max_total_time="$seconds" -max_len=16384 -timeout=10 \
        -rss_limit_mb=1024 -use_value_profile=1 -verbosity=0 -print_final_stats=1 \
        -artifact_prefix="$programs/$name-" "$found" "$@" >"$programs/$name.log" 2>&1 || {
        cat "$programs/$name.log"
        return 1
    }
    echo "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$programs/$name.log") inputs"
}

fuzz rtf "$here/corpus/rtf" "$here/../services/rtf/samples" &
first=$!
fuzz menu "$here/corpus/menu"
wait "$first"

fuzz project "$here/corpus/project" &
first=$!
fuzz words "$here/corpus/words"
wait "$first"
