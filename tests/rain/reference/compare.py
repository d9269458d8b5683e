# SPDX-License-Identifier: MIT
"""Compares extremes and fits of `mero-batch rain series` with two published evaluations (idf-analysis, lmoments3) on
made-up series of 30 years of ten-minute values.
Use: compare.py MERO_BATCH [SERIES]"""
import json
import logging
import os
import subprocess
import sys
import tempfile
import warnings

os.environ["TQDM_DISABLE"] = "1"
import lmoments3.distr
import numpy
import pandas
from idf_analysis.extrem_value_series import ExtremValueSeries

TOLERANCE = 0.01
RETURN_PERIODS = (1, 5, 20)
CORRECTION = {1: 1.14, 2: 1.07, 3: 1.04, 4: 1.03}


def made_up_series(seed):
    """Storms at random moments, long and weak or short and strong, in tenths of a millimetre."""
    random = numpy.random.default_rng(seed)
    index = pandas.date_range("1991-01-01", "2020-12-31 23:50", freq="10min", tz="UTC")
    depths = numpy.zeros(len(index))
    for start in random.integers(0, len(index) - 500, size=30 * 90):
        length = int(random.choice([2, 4, 12, 36, 144], p=[0.3, 0.3, 0.2, 0.15, 0.05]))
        total = random.exponential(5) + random.exponential(3)
        shape = random.dirichlet(numpy.full(length, 0.7))
        depths[start:start + length] += total * shape
    return pandas.Series(numpy.round(depths, 1), index=index)


def write_months(series, folder):
    files = []
    for month, values in series.groupby(series.index.strftime("%Y%m")):
        name = os.path.join(folder, f"10m-0-20000-0-11406-SRA10M-{month}.csv")
        with open(name, "w") as file:
            file.write("STATION,ELEMENT,DT,VALUE,FLAG,QUALITY\n")
            for moment, value in values.items():
                file.write(f"0-20000-0-11406,SRA10M,{moment:%Y-%m-%dT%H:%M:%SZ},{value:.1f},,0\n")
        files.append(name)
    return files


def close(name, ours, theirs, worst):
    difference = abs(ours - theirs) / abs(theirs)
    worst[name] = max(worst.get(name, 0), difference)
    return difference <= TOLERANCE


def compare(batch, seed, worst):
    series = made_up_series(seed)
    failures = []
    with tempfile.TemporaryDirectory() as folder:
        files = write_months(series, folder)
        answers = {}
        for years in RETURN_PERIODS:
            done = subprocess.run([batch, "rain", "series", "--return-period", str(years), "--durations", "24h",
                                   "--json", *files], capture_output=True, text=True)
            if done.returncode != 0:
                return [f"series {seed}: {done.stderr}"]
            answers[years] = json.loads(done.stdout)
    naive = series.tz_localize(None)
    durations = [int(fit["duration_min"]) for fit in answers[5]["fit"]]
    evaluation = ExtremValueSeries.from_series(naive, durations)
    for at, duration in enumerate(durations):
        correction = CORRECTION.get(duration // 10, 1.0)
        _, annual = evaluation.annual_series(duration)
        ours = sorted(answers[5]["fit"][at]["annual_maxima_mm"].values(), reverse=True)
        for mine, theirs in zip(ours, annual):
            if not close("annual maxima", mine * correction, theirs, worst):
                failures.append(f"series {seed}, {duration} min: maximum {mine * correction} against {theirs}")
        _, partial = evaluation.partial_series(duration)
        for mine, theirs in zip(answers[1]["fit"][at]["peaks_mm"], partial):
            if not close("peaks", mine * correction, theirs, worst):
                failures.append(f"series {seed}, {duration} min: peak {mine * correction} against {theirs}")
        gumbel = lmoments3.distr.gum.lmom_fit(list(annual))
        exponential = lmoments3.distr.exp.lmom_fit(list(partial))
        for years in RETURN_PERIODS:
            mine = answers[years]["fit"][at]["depth_mm"]
            if years < 2:
                theirs = exponential["loc"] + exponential["scale"] * numpy.log(len(partial) / 30 * years)
            else:
                theirs = lmoments3.distr.gum.ppf(1 - 1 / years, **gumbel)
            if not close(f"depths of {years} years", mine, theirs, worst):
                failures.append(f"series {seed}, {duration} min, {years} years: {mine} against {theirs}")
    return failures


def main():
    warnings.simplefilter("ignore")
    logging.disable(logging.WARNING)
    batch = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 3
    worst = {}
    failures = [failure for seed in range(count) for failure in compare(batch, seed, worst)]
    for failure in failures[:20]:
        print(failure)
    for name, difference in worst.items():
        print(f"{name}: differ by at most {100 * difference:.3f} %")
    print(f"{count} series of 30 years, {len(failures)} differences above {100 * TOLERANCE:.0f} %")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
