#!/bin/sh
# SPDX-License-Identifier: MIT
# usage: rain_database_matches_csv.sh DATA_FOLDER
# Checks that mero.mdb holds exactly the tables of the CSV files, with their values.
# Fails if a CSV file was changed and the database was not rebuilt, or the other way round.
set -u
data=$1
command -v mdb-export >/dev/null || { echo "mdb-export is missing"; exit 77; }
unset MDBICONV MDB_JET3_CHARSET MDBOPTS MDBPATH
LC_ALL=C
export LC_ALL
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
failures=0

{ sed -n '2,$s/.*;/List/p' "$data/stations.csv"; echo Demo; } | sort >"$work/expected"
mdb-tables -1 "$data/mero.mdb" | sort >"$work/tables"
diff "$work/expected" "$work/tables" || failures=1
[ "$(grep -c List "$work/expected")" -eq 92 ] || { echo "there must be 92 stations"; failures=1; }

# Singles are exported with 8 digits, so the eighth digit may differ from the CSV file.
for table in $(grep List "$work/expected"); do
    mdb-export -Q "$data/mero.mdb" "$table" >"$work/exported"
    awk -F, -v table="$table" '
        NR == FNR { expected[FNR] = $0; lines = FNR; next }
        {
            fields = split(expected[FNR], wanted, ",")
            bad = fields != NF
            for (i = 1; i <= NF && !bad; ++i) {
                difference = $i - wanted[i]
                bad = FNR == 1 ? $i "" != wanted[i] "" : difference * difference > (wanted[i] * 1e-7) ^ 2
            }
            if (bad) { print table ": " $0 " instead of " expected[FNR]; exit bad }
        }
        END { if (bad) exit 1; if (FNR != lines) { print table ": " FNR " lines instead of " lines; exit 1 } }
    ' "$data/rain/$table.csv" "$work/exported" || failures=1
done

mdb-export -Q "$data/mero.mdb" Demo | diff "$data/demo.csv" - || failures=1
exit $failures
