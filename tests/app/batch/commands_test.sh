#!/bin/sh
# SPDX-License-Identifier: MIT
# The commands on projects as a user calls them: outputs, exit statuses, files on the disk.
# Use: commands_test.sh MERO_BATCH SOURCE_FOLDER
set -u

batch=$1
source=$2
projects=$source/examples/projekty
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
mkdir "$work/folder"
cp "$source/data/mero.mdb" "$work/folder/"
cp -r "$source/Webs" "$work/folder/"
cd "$work" || exit 1
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# expect STATUS NAME COMMAND...: runs the command; its output is in the file out, its errors are in err.
expect() {
    wanted=$1
    name=$2
    shift 2
    "$@" >out 2>err </dev/null
    status=$?
    [ "$status" -eq "$wanted" ] || fail "$name: exit status $status instead of $wanted: $(cat err)"
}

# within_seconds LIMIT COMMAND...: of the processor's time, so that other programs do not matter.
within_seconds() {
    (ulimit -t "$1" && shift && exec "$@")
}

holds() {
    grep -qF -- "$2" "$1" || fail "$3: \"$2\" is not in $1: $(head -c 600 "$1")"
}

# Help and version.
for command in run design sweep stations rain; do
    expect 0 "$command --help" "$batch" $command --help
    holds out "usage: mero-batch $command" "$command --help"
    holds out "Exit status:" "$command --help"
done
expect 0 "help" "$batch" --help
for command in run design sweep stations rain; do holds out "  $command " "help"; done
expect 0 "version" "$batch" --version
expect 2 "no command" "$batch"
expect 2 "unknown command" "$batch" devise
holds err "unknown command devise" "unknown command"

# Every example is designed.
for project in "$projects"/*.json; do
    expect 0 "$project" "$batch" design --folder folder "$project"
    expect 0 "$project as JSON" "$batch" design --json --folder folder "$project"
    python3 -c 'import json, sys; d = json.load(open("out")); assert d["completed"] and d["results"]' ||
        fail "$project: no JSON"
done
expect 0 "surface" "$batch" design --folder folder "$projects/plosne-vsakovani.json"
holds out "1 015.7 m²" "surface"   # 990 / (1e-4 * 1e7 / (2 * 253.2) - 1) = 1015.67...
holds err "demonstration values" "surface"

# The report has the same bytes as the window's.
moment=2026-11-20T14:05:09
expect 0 "script" "$batch" run --folder folder --clock $moment "$source/examples/plosne-vsakovani.mero"
expect 0 "report" "$batch" design --folder folder --clock $moment --report report.html \
    "$projects/plosne-vsakovani.json"
cmp report.html "folder/Mero_Plošné vsakování" || fail "the reports differ"

# Errors in the project: status 2, one line that names file and path, nothing written.
sed 's/"trench_width_m"/"trench_widht_m"/' "$projects/ryha-s-drenem.json" >wrong.json
expect 2 "unknown name" "$batch" design --folder folder --report none.html wrong.json
holds err "wrong.json: facility.trench_widht_m: is not a known name; did you mean \"trench_width_m\"?" "unknown name"
[ ! -e none.html ] || fail "a report of a wrong project"
[ ! -s out ] || fail "output of a wrong project"
expect 2 "unknown name in a sweep" "$batch" sweep --folder folder --vary facility.soil=all --out none.csv wrong.json
[ ! -e none.csv ] || fail "rows of a wrong project"
expect 2 "missing project" "$batch" design nowhere.json
expect 2 "no project" "$batch" design
expect 2 "two projects" "$batch" design a.json b.json
expect 2 "unknown option" "$batch" design --jsn a.json
expect 2 "bad clock" "$batch" design --clock yesterday a.json
expect 2 "bad folder" "$batch" design --folder nowhere a.json
expect 2 "value for a flag" "$batch" design --json=yes a.json

# Failures that are not the user's input: status 1.
mkdir empty
expect 1 "no database" "$batch" design --folder empty "$projects/pruleh.json"
expect 1 "report in no folder" "$batch" design --folder folder --report nowhere/r.html "$projects/pruleh.json"
sed 's/"area_m2": 800/"area_m2": -300/' "$projects/nadrz.json" >dry.json
expect 1 "report without a type" "$batch" design --report dry.html dry.json
holds err "no report" "report without a type"
[ ! -e dry.html ] || fail "a report without a type"

# Stations.
expect 0 "stations" "$batch" stations
holds out " 84  Brno" "stations"
expect 0 "a station" "$batch" stations --folder folder Brno
holds out "253.2" "a station"
expect 2 "no such station" "$batch" stations Brnoo
holds err 'did you mean "Brno"?' "no such station"

# A sweep: rows, order, quotes, the same on any number of threads.
all="$projects/vsechny-typy.json"
expect 0 "sweep" "$batch" sweep "$all" --folder folder --vary facility.type=all \
    --vary subsoil.filtration_coefficient_m_s=log:1e-6:1e-3:200 --vary rain.station=Brno,Zlín --out rows.csv --threads 3
[ ! -s out ] || fail "rows on standard output beside --out"
expect 0 "sweep to standard output" "$batch" sweep "$all" --folder folder --vary facility.type=all \
    --vary subsoil.filtration_coefficient_m_s=log:1e-6:1e-3:200 --vary rain.station=Brno,Zlín --threads=1
cmp out rows.csv || fail "the rows depend on the number of threads"
python3 - <<'PYTHON' || fail "the rows are no CSV table"
import csv
rows = list(csv.reader(open("rows.csv", newline="", encoding="utf-8")))
assert len(rows) == 1 + 6 * 200 * 2, len(rows)
assert {len(row) for row in rows} == {len(rows[0])}
assert rows[0][:3] == ["facility.type", "subsoil.filtration_coefficient_m_s", "rain.station"]
assert [row[2] for row in rows[1:5]] == ["Brno", "Zlín", "Brno", "Zlín"]
assert open("rows.csv", "rb").read().count(b"\r\n") == len(rows)
PYTHON

# A plot is a separate file. Each line is there twice: in the plot and in the legend.
expect 0 "plot" "$batch" sweep "$projects/ryha-s-drenem.json" --folder folder --plot p.svg \
    --vary facility.trench_width_m=0.6:2.0:0.1 --vary rain.periodicity=0.5,0.2,0.1
[ ! -s out ] || fail "rows beside a plot that nobody asked for"
python3 -c 'import xml.dom.minidom as d; s = d.parse("p.svg"); assert len(s.getElementsByTagName("polyline")) == 6' ||
    fail "the plot"
expect 2 "plot of no number" "$batch" sweep "$all" --folder folder --plot none.svg --vary facility.soil=all
[ ! -e none.svg ] || fail "a plot of nothing"

# The plotted result can be chosen; rows and a plot can be written together.
expect 0 "chosen plot" "$batch" sweep "$projects/ryha-s-drenem.json" --folder folder --plot chosen.svg --out chosen.csv \
    --vary facility.trench_width_m=0.6,1,1.4 --vary facility.trench_height_m=1,2 --vary rain.periodicity=0.5,0.2 \
    --plot-result infiltration_area_m2 --plot-over facility.trench_height_m --plot-lines facility.trench_width_m
holds chosen.svg ">Plocha potřebná pro vsakování [m²]</text>" "the chosen result"
holds chosen.svg ">Výška rýhy [m]</text>" "the chosen axis"
holds chosen.svg ">Periodicita = 0.5 1/rok</text>" "the value that is held"
python3 -c 'import xml.dom.minidom as d; s = d.parse("chosen.svg"); assert len(s.getElementsByTagName("polyline")) == 6' ||
    fail "the chosen lines"
[ "$(wc -l <chosen.csv)" -eq 13 ] || fail "the rows beside a plot"
expect 2 "no such result" "$batch" sweep "$all" --plot none.svg --vary facility.safety_factor=1,2 --plot-result volume
holds err "volume: is no result" "no such result"
expect 1 "plot in no folder" "$batch" sweep "$projects/nadrz.json" --folder folder --plot nowhere/p.svg \
    --vary facility.safety_factor=1,2

# Without a folder the database beside the program is used.
expect 0 "the program's own folder" "$batch" design "$projects/plosne-vsakovani.json"
holds out "1 015.7 m²" "the program's own folder"

# Ends of a sweep.
expect 2 "no project to sweep" "$batch" sweep --vary facility.soil=all
holds err "which project?" "no project to sweep"
expect 2 "nothing to vary" "$batch" sweep "$all"
expect 2 "unknown path" "$batch" sweep "$all" --vary facility.trench_widht_m=1
expect 2 "threads" "$batch" sweep "$all" --vary facility.soil=all --threads 0
expect 1 "no place for the rows" "$batch" sweep "$all" --folder folder --vary facility.soil=all --out nowhere/r.csv
if [ -w /dev/full ]; then
    expect 1 "full disk" "$batch" sweep "$all" --folder folder --vary facility.safety_factor=1:2:0.0001 --out /dev/full
    holds err "cannot be written: No space left on device" "full disk"
fi
# A sweep that is stopped keeps its rows beside the old file.
echo old >stopped.csv
for signal in INT TERM HUP; do
    # In an own session with default signals: a background job of this shell ignores Ctrl-C.
    python3 -c 'import os, signal, sys
signal.signal(signal.SIGINT, signal.SIG_DFL)
os.execv(sys.argv[1], sys.argv[1:])' "$batch" sweep "$projects/nadrz.json" --folder folder \
        --vary facility.safety_factor=1:2:0.00002 --vary facility.bottom_length_m=1:50:0.001 --out stopped.csv 2>err &
    sweep=$!
    tries=0
    while [ -z "$(find . -maxdepth 1 -name '.mero-*' -size +0)" ] && [ $tries -lt 1000 ]; do
        sleep 0.05
        tries=$((tries + 1))
    done
    kill -$signal $sweep
    wait $sweep
    status=$?
    [ $status -eq 130 ] || fail "a sweep stopped by SIG$signal ends with $status: $(cat err)"
    holds err "stopped after" "stopped sweep"
    holds err "these rows are in $PWD/stopped.csv.part" "stopped sweep"
    [ "$(cat stopped.csv)" = old ] || fail "a stopped sweep changes the complete file"
    [ "$(tail -c 2 stopped.csv.part | od -An -tx1 | tr -d ' ')" = 0d0a ] || fail "a stopped sweep leaves half a row"
    [ -z "$(find . -name '.mero-*')" ] || fail "a stopped sweep leaves a temporary file"
    rm -f stopped.csv.part
done

# Devices and pipes are written as they are.
expect 0 "rows to a device" "$batch" sweep "$projects/nadrz.json" --folder folder --vary facility.safety_factor=1,2 \
    --out /dev/null --plot /dev/null
"$batch" sweep "$projects/nadrz.json" --folder folder --vary facility.safety_factor=1,2 --out /dev/stdout 2>err | cat >piped
[ "$(wc -l <piped)" -eq 3 ] || fail "rows to standard output by its name: $(cat err)"

# No output is an input, the rain database or the other output, whatever its name.
cp "$projects/nadrz.json" own.json
ln -s own.json linked.json
ln own.json hard.json
ln -s folder other
ln -s nowhere.csv dangling.csv
database=$(md5sum <folder/mero.mdb)
project=$(md5sum <own.json)
vary="--vary facility.safety_factor=1,2"
refused() {
    expect 2 "$1" "$batch" "$3" own.json --folder folder $4
    holds err "$2: nothing was written" "$1"
    [ ! -s out ] || fail "$1: something was printed"
}
for file in own.json ./folder/../own.json linked.json hard.json "$PWD/own.json"; do
    refused "report over the project" "--report $file is the project file" design "--report $file"
    refused "rows over the project" "--out $file is the project file" sweep "$vary --out $file"
    refused "plot over the project" "--plot $file is the project file" sweep "$vary --plot $file"
done
for file in folder/mero.mdb other/mero.mdb; do
    refused "report over the database" "--report $file is the rain database" design "--report $file"
    refused "rows over the database" "--out $file is the rain database" sweep "$vary --out $file"
    refused "plot over the database" "--plot $file is the rain database" sweep "$vary --plot $file"
done
refused "rows over the plot" "--out other/x.csv is the file of --plot" sweep "$vary --plot folder/x.csv --out other/x.csv"
refused "rows over the plot" "--out ./x.csv is the file of --plot" sweep "$vary --plot x.csv --out ./x.csv"
cp own.json y.csv.part
expect 2 "stopped rows over the project" "$batch" sweep y.csv.part --folder folder $vary --out y.csv
holds err "is the project file" "stopped rows over the project"
[ "$(md5sum <folder/mero.mdb)" = "$database" ] && [ "$(md5sum <own.json)" = "$project" ] ||
    fail "an input was overwritten"
[ ! -e folder/x.csv ] && [ ! -e x.csv ] && [ ! -e y.csv ] || fail "a refused output was written"
expect 0 "a link that leads nowhere" "$batch" sweep own.json --folder folder $vary --out dangling.csv
[ "$(wc -l <dangling.csv)" -eq 3 ] || fail "the link is not replaced"

# What is no file, or too large, is refused at once.
mkfifo pipe
truncate -s 64M large && printf x >>large
for file in pipe /dev/zero folder; do
    expect 2 "project $file" timeout 20 "$batch" design "$file"
    holds err "$file: cannot be read: it is no ordinary file" "project $file"
    expect 2 "script $file" timeout 20 "$batch" run --folder folder "$file"
    holds err "cannot read the script $file: it is no ordinary file" "script $file"
done
expect 2 "a large project" "$batch" design large
holds err "large: cannot be read: it is larger than 64 MB" "a large project"
expect 2 "a large script" "$batch" run --folder folder large
holds err "cannot read the script large: it is larger than 64 MB" "a large script"
within_seconds 60 "$batch" run --folder folder - </dev/zero >out 2>err
[ $? -eq 2 ] || fail "an endless line: exit status"
holds err "-:1: the line is longer than 64 MB" "an endless line"

# Many areas and many lines take seconds of the processor, not minutes.
python3 -c 'import json
project = json.load(open("own.json"))
json.dump(project | {"areas": [{"area_m2": 1, "runoff_coefficient": 0.5}] * 200000}, open("areas.json", "w"))
project["project"]["description"] = "line\n" * 400000
json.dump(project, open("lines.json", "w"))'
expect 0 "200,000 areas" within_seconds 30 "$batch" design --folder folder areas.json
expect 0 "400,000 lines" within_seconds 30 "$batch" design --folder folder --report lines.html lines.json

# Without a full path in HOME an installed copy has no folder, and makes none.
mkdir -p usr/bin usr/share/mero empty
cp "$batch" usr/bin/
cp folder/mero.mdb usr/share/mero/
cp -r folder/Webs usr/share/mero/
: >none.mero
cp "$projects/plosne-vsakovani.json" station.json
for home in "" relative ./x; do
    for arguments in "design $work/station.json" "sweep $work/station.json $vary" "stations Brno" \
        "run $work/none.mero"; do
        (cd empty && env -u XDG_DATA_HOME HOME="$home" "$work/usr/bin/mero-batch" $arguments >../out 2>../err)
        [ $? -eq 2 ] || fail "HOME='$home' $arguments: not refused: $(cat out err)"
        holds err "HOME is not set to a full path (give --folder DIR)" "HOME='$home' $arguments"
    done
done
[ -z "$(ls -A empty)" ] || fail "a folder was made in the current one"

[ $failures -eq 0 ]
