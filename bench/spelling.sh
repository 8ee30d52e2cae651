#!/bin/sh
# Measures the spelling check on a generated page of 999,999 bytes beside what a user would take
# instead, and the suggestions. Words of the dictionary stand in the page as often as words do in a
# language (Zipf and Mandelbrot); one of 200 is misspelt.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/tools/setup.sh"

install_packages $BUILD_PACKAGES libbenchmark-dev hyperfine python3 aspell aspell-en
build bench tagsmith_bench_driver
driver="$root/build/bench/bin/tagsmith_bench_driver"
place=$(mktemp -d /dev/shm/tagsmith-bench-XXXXXX)
trap 'rm -rf "$place"' EXIT
cd "$place"
python3 -B - <<'END'
import random

random.seed(1)
lines = open("/usr/share/hunspell/en_US.dic", encoding="utf-8", errors="replace")
words = [word for word in (line.split("/")[0].strip() for line in lines) if word.isalpha() and word.islower()]
random.shuffle(words)
weights = [1 / (rank + 2.7) ** 1.15 for rank in range(len(words))]
text = []
size = 0
wrong = set()
for word in random.choices(words, weights, k=300_000):
    if random.random() < 0.005:
        word += "qx"
        wrong.add(word)
    piece = f'\n<P Class="main">{word} ' if random.random() < 0.05 else f"{word} "
    if size + len(piece) > 999_990:
        break
    size += len(piece)
    text.append(piece)
open("page.html", "w").write("".join(text).ljust(999_999))
open("wrong.txt", "w").write("\n".join(sorted(wrong)[:50]) + "\n")
END

echo "== A page of 999,999 bytes, whole processes and the check alone"
hyperfine --shell sh --warmup 1 --runs "${RUNS:-10}" --style none --export-json times.json \
    "$driver spell page.html" "aspell --mode=html --lang=en_US list <page.html" >/dev/null
python3 -B - <<'END'
import json

for result in json.load(open("times.json"))["results"]:
    name = result["command"].split("/")[-1]
    print(f'{result["median"] * 1000:9.1f} ms  {name}')
END
"$driver" spell page.html
echo "== Suggestions for $(wc -l <wrong.txt) words"
"$driver" suggest wrong.txt | tail -1
