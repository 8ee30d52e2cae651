#!/bin/sh
# Converts sample files and fails unless each page is valid HTML: pages_are_valid.sh CONVERTER FOLDER
set -eu
converter=$1
samples=$2

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

failed=0
for sample in "$samples"/*.rtf; do
  page=$folder/$(basename "$sample" .rtf).html
  "$converter" "$sample" "$page"
  iconv -f utf-8 -t utf-8 "$page" >/dev/null
  if ! tidy -e -q --show-warnings yes "$page"; then
    echo "not valid: $sample" >&2
    failed=1
  fi
done
exit $failed
