#!/usr/bin/env bash
# The editor at rest takes no processor time: started on a project made from the
# template, on a virtual display, its user and system time must not grow over the
# measured seconds. Usage: app_idle_cpu.sh EDITOR TEMPLATE_DIR [SECONDS]
set -euo pipefail
editor=$1
template=$2
seconds=${3:-10}
work=$(mktemp -d)
pid=
group=
cleanup() {
  [[ -n $pid ]] && kill "$pid" 2>/dev/null || true
  # The virtual display and its wrapper go with their process group, also when this
  # script is stopped by a time limit.
  [[ -n $group ]] && kill -- "-$group" 2>/dev/null || true
  sleep 0.5
  rm -rf "$work"
}
trap cleanup EXIT

mkdir "$work/project"
cp -r "$template"/. "$work/project"
cp -r "$work/project/default" "$work/project/data"  # not a first start: no questions
cd "$work/project"

# Clock ticks of user plus system time; the fields behind the command name.
ticks() { sed 's/.*) //' "/proc/$1/stat" | awk '{ print $12 + $13 }'; }

export ASAN_OPTIONS=detect_leaks=0
# A lock of its own, so that an editor running elsewhere does not make this one ask
# whether to start twice, with nobody to answer.
export XDG_RUNTIME_DIR=$work/run
mkdir -m 700 "$XDG_RUNTIME_DIR"
setsid timeout $((seconds + 40)) xvfb-run -a -s "-screen 0 1024x768x24" bash -c '"$1" & echo $! > "$2"; wait' _ "$editor" "$work/pid" &
group=$!
for _ in $(seq 100); do [[ -s $work/pid ]] && break; sleep 0.1; done
pid=$(cat "$work/pid")
sleep 3  # the start-up itself
before=$(ticks "$pid")
sleep "$seconds"
after=$(ticks "$pid")
used=$((after - before))
echo "idle editor: $used clock ticks of $(getconf CLK_TCK) per second used in $seconds seconds"
# A tick may fall to the process by the accounting of a single wake-up.
((used <= 1))
