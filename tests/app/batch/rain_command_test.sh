#!/bin/sh
# SPDX-License-Identifier: MIT
# `mero-batch rain` as a user calls it: three sources, the nine rows, a project with them.
# Use: rain_command_test.sh MERO_BATCH SOURCE_FOLDER
set -u

batch=$1
source=$2
tables=$source/tests/rain/tables/read
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

holds() {
    grep -qF -- "$2" "$1" || fail "$3: \"$2\" is not in $1: $(head -c 600 "$1")"
}

# json NAME EXPRESSION: a truth about the object d in out.
json() {
    python3 -c "import json; d = json.load(open('out')); assert $2, d" || fail "$1: not $2"
}

# The total of a day: 50 mm once in 5 years are 221 l/(s.ha) in a quarter of an hour.
expect 0 "total" "$batch" rain total --h24 50 --return-period 5 --json
json "total" "d['durations_min'] == [5, 10, 15, 20, 30, 45, 60, 90, 120]"
json "total" "round(d['intensities_l_s_ha'][2]) == 221"
expect 0 "total, surcharge" "$batch" rain total --h24 50 --return-period 5 --surcharge 10 --json
json "total, surcharge" "abs(d['intensities_l_s_ha'][2] - 1.1 * 221.1) < 0.1"
expect 0 "total to a day" "$batch" rain total --h24 50 --return-period 5 --durations 24h --json
json "total to a day" "abs(d['intensities_l_s_ha'][-1] * 1440 * 60 / 10000 - 50) < 0.05"
expect 2 "total beyond a day" "$batch" rain total --h24 50 --return-period 5 --durations 72h
holds err "no rain of 4320 min" "total beyond a day"
expect 2 "total of 3 years" "$batch" rain total --h24 50 --return-period 3
expect 2 "total of half a year" "$batch" rain total --h24 50 --return-period 0.5
expect 2 "no total" "$batch" rain total --return-period 5
expect 2 "negative total" "$batch" rain total --h24 -5 --return-period 5
expect 2 "comma" "$batch" rain total --h24 50,5 --return-period 5

# A table.
expect 0 "table" "$batch" rain table "$tables/13-decimal-comma.csv" --json
json "table" "d['intensities_l_s_ha'][:3] == [300, 210, 165] and d['interpolated'][3] and not d['interpolated'][2]"
expect 0 "table for people" "$batch" rain table "$tables/13-decimal-comma.csv"
holds out "interpolováno" "table for people"
printf '5;300\n10;210\n15;165\n120;38\n' >bare.csv
expect 2 "no unit" "$batch" rain table bare.csv
holds err "give it with --unit" "no unit"
expect 0 "a told unit" "$batch" rain table bare.csv --unit l/s/ha --json
json "a told unit" "d['intensities_l_s_ha'][0] == 300"
expect 2 "no such unit" "$batch" rain table bare.csv --unit inch
expect 2 "no such column" "$batch" rain table bare.csv --unit mm --column 2
expect 2 "no such file" "$batch" rain table missing.csv
expect 2 "a folder" "$batch" rain table folder
expect 2 "no such set" "$batch" rain table bare.csv --unit l/s/ha --durations week

# A measured series: three years with one burst each, and a gap.
python3 - <<'END'
import datetime
with open("series.csv", "w") as file:
    file.write("STATION,ELEMENT,DT,VALUE,FLAG,QUALITY\n")
    moment = datetime.datetime(2021, 1, 1)
    while moment.year < 2024:
        burst = (moment.month, moment.day, moment.hour) == (7, 1, 12)
        value = (moment.year - 2018) * (1 + moment.minute / 100) if burst else 0
        if not (moment.year == 2022 and moment.month == 2 and moment.day == 1):
            file.write(f"x,SRA10M,{moment:%Y-%m-%dT%H:%M:%SZ},{value:.2f},,0\n")
        moment += datetime.timedelta(minutes=10)
END
expect 0 "series" "$batch" rain series --return-period 5 --durations 24h --json series.csv
json "series" "d['years_used'] == 3 and d['fit'][0]['duration_min'] == 10"
json "series" "abs(d['fit'][0]['annual_maxima_mm']['2021'] - 4.5) < 1e-5"
holds err "Mezery: 1, chybí 144 intervalů, nejdelší mezera 24.0 h." "series"
expect 2 "series without 5 minutes" "$batch" rain series --return-period 5 --durations classic series.csv
holds err "no rain of 5 min" "series without 5 minutes"
expect 2 "series without years" "$batch" rain series series.csv
expect 2 "a table is no series" "$batch" rain series --return-period 5 bare.csv

# Into a project, which is designed with it.
cp "$source/examples/projekty/pruleh.json" project.json
expect 0 "into" "$batch" rain total --h24 50 --return-period 10 --into project.json
python3 - <<'END' || fail "into: the project"
import json
rain = json.load(open("project.json"))["rain"]
assert "station" not in rain and rain["periodicity"] == 0.1 and rain["design_duration_min"] == 15, rain
assert len(rain["intensities_l_s_ha"]) == 9
END
expect 0 "a design with it" "$batch" design --folder folder project.json
grep -q demonstration err && fail "own rain is called a demonstration"
echo '{' >broken.json
expect 2 "into a broken file" "$batch" rain total --h24 50 --return-period 10 --into broken.json
[ "$(cat broken.json)" = '{' ] || fail "a broken project was changed"
expect 2 "into nothing" "$batch" rain total --h24 50 --return-period 10 --into missing.json

cp bare.csv source.csv
ln source.csv twin.csv
expect 2 "into its own source" "$batch" rain table source.csv --unit l/s/ha --into twin.csv
holds err "is the source" "into its own source"
expect 2 "a device" "$batch" rain table /dev/zero

expect 2 "no source" "$batch" rain
expect 2 "unknown source" "$batch" rain cloud
expect 0 "help" "$batch" rain --help
holds out "Exit status:" "help"
[ $failures -eq 0 ]
