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

"$tool" csv export "$dir/p" 1 "$dir/list1.csv" >/dev/null 2>&1 || { echo "csv does not read a new project's default tree"; exit 1; }
(cd "$dir/p" && "$tool" check --repairs 2>/dev/null) > "$dir/repairs.txt"
grep -q '^check: no reference was repaired' "$dir/repairs.txt" || { echo "check --repairs finds repairs in a new project"; exit 1; }
"$tool" dump "$dir/p/default/database/Land.dat" > "$dir/land.txt"
[[ $(head -n 1 "$dir/land.txt") == "version 290" ]] || { echo "dump has no version line"; exit 1; }
head -c 100 "$dir/p/default/database/Land.dat" > "$dir/Land.dat"
if "$tool" dump "$dir/Land.dat" >/dev/null 2>&1; then echo "a cut file dumped without an error"; exit 1; fi

# dump as git's text conversion: a changed stage shows as changed fields.
if command -v git >/dev/null 2>&1; then
  (
    cd "$dir/p"
    git init -q .
    printf '*.dat diff=ortalune\n*.stg2 diff=ortalune\n' > .gitattributes
    git config diff.ortalune.textconv "$tool dump"
    git add -A
    git -c user.name=ci -c user.email=ci@example.org commit -qm template
    cp default/stg/Sample.stg2 default/stg/Default.stg2
    git diff
  ) > "$dir/diff.txt"
  grep -q '^-m_strName = ' "$dir/diff.txt" && grep -q '^+m_strName = ' "$dir/diff.txt" \
    || { echo "git diff does not show the fields of a changed stage"; exit 1; }
fi
echo "ortalune-tool behaves"
