#!/usr/bin/env bash
# The folders of src/ stand in layers, and a folder includes only from its own layer
# or those below it. The records' folders share one layer: they read one another's
# tables through the project's globals.
set -euo pipefail
src=$1
layers=(
  "platform"
  "kernel"
  "media sound"
  "database event stage project"
  "app"
  "toolkit"
  "forms"
  "editor"
)
declare -A level
for i in "${!layers[@]}"; do
  for folder in ${layers[$i]}; do level[$folder]=$i; done
done

bad=0
for folder in "${!level[@]}"; do
  while IFS= read -r line; do
    file=${line%%:*}
    target=$(sed -E 's/.*#include "([a-z_]+)\/.*/\1/' <<<"$line")
    [[ -n ${level[$target]:-} ]] || continue
    if (( level[$target] > level[$folder] )); then
      echo "${file#$src/} reaches up into $target/"
      bad=1
    fi
  done < <(grep -rnE '^#include "[a-z_]+/' "$src/$folder" || true)
done
((bad == 0)) && echo "every include runs down the layers"
exit $bad
