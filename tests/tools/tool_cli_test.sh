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
"$tool" new "$dir/p" >/dev/null
(cd "$dir/p" && "$tool" check >/dev/null 2>&1) || { echo "a new project does not pass check"; exit 1; }
if "$tool" new "$dir/p" 2>/dev/null; then echo "new wrote into a directory that is not empty"; exit 1; fi
(cd "$dir/p" && "$tool" render-stage data/stg/Sample.stg2 "$dir/stage.png" >/dev/null 2>&1 \
  && "$tool" render-world "$dir/world.png" >/dev/null 2>&1) || { echo "the maps of a new project do not render"; exit 1; }
[[ $(od -A n -t x1 -N 4 "$dir/stage.png" | tr -d ' ') == 89504e47 ]] || { echo "render-stage wrote no PNG"; exit 1; }
if (cd "$dir/p" && "$tool" render-stage no-such.stg2 "$dir/x.png" 2>/dev/null); then echo "a missing stage rendered"; exit 1; fi
echo "ortalune-tool behaves"
