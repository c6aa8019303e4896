#!/usr/bin/env bash
# The built ortalune-tool, run as an author runs it.
set -euo pipefail
tool=$1
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT

"$tool" --help | grep -q 'resave'
"$tool" --help | grep -q 'csv export|import'
if "$tool" csv export 2>/dev/null; then echo "csv without its words succeeded"; exit 1; fi
if "$tool" no-such-command 2>/dev/null; then echo "an unknown command succeeded"; exit 1; fi

"$tool" report "$dir" >/dev/null
head -c 15 "$dir/Report_Editor.txt" | od -c | grep -q 'A   p   p' || { echo "report log does not start with the version line"; exit 1; }

printf '\x24\x00\x00\x00\x06\x00\x00\x00\x01\x00\x00\x00\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00' \
  > "$dir/SheetSize.dat"
"$tool" resave "$dir/SheetSize.dat" "$dir/out.dat" >/dev/null
[[ $(od -A n -t x1 -N 4 "$dir/out.dat" | tr -d ' ') == 22010000 ]] || { echo "resave did not write version 290"; exit 1; }
cmp -s <(tail -c +5 "$dir/SheetSize.dat") <(tail -c +5 "$dir/out.dat") || { echo "resave changed the fields"; exit 1; }
echo "ortalune-tool behaves"
