# SPDX-License-Identifier: MIT
"""Expected numbers of the design tests, worked out apart from the program.

The procedures are written down once more here, in double precision with a rounding to Single at each store, and
with the detour through the result fields that read themselves back. Numbers are rounded for display as on paper
(decimal, half away from zero). `python3 expected.py` prints one block per case; its numbers were copied by hand
into the tests of this folder and into the comments beside them, and each case here bears the name of its test.
`python3 expected.py --examples` prints what the scripts in examples/ must show. Needs only the standard library.
"""

import csv
import math
import struct
import sys
from decimal import ROUND_HALF_UP, Decimal
from pathlib import Path

PI = 3.1415927410125732  # the circle number as a Single
RATE = 1e-7  # one l/(s.ha) in m/s
DURATIONS = [5, 10, 15, 20, 30, 45, 60, 90, 120]
ROOT = Path(__file__).resolve().parents[3]


def single(value):
    """Stores a double in a Single; OverflowError where a Single cannot hold it."""
    return struct.unpack("<f", struct.pack("<f", value))[0]


def digits(value, is_single=True):
    """The shortest decimal that reads back to the same value."""
    if not is_single:
        return Decimal(repr(value))
    for places in range(1, 10):
        text = f"{value:.{places}g}"
        if single(float(text)) == value:
            return Decimal(text)
    raise AssertionError(value)


def fixed(value, decimals, is_single=True):
    rounded = digits(value, is_single).quantize(Decimal(1).scaleb(-decimals), ROUND_HALF_UP)
    text = f"{abs(rounded):,f}".replace(",", " ")
    return ("-" if rounded < 0 else "") + text


def scientific(value):
    if value == 0:
        return "0.0E+00"
    exact = digits(value)
    exponent = exact.adjusted()
    mantissa = exact.scaleb(-exponent).quantize(Decimal("0.1"), ROUND_HALF_UP)
    if abs(mantissa) >= 10:
        mantissa, exponent = mantissa / 10, exponent + 1
    return f"{mantissa:.1f}E{'-' if exponent < 0 else '+'}{abs(exponent):02d}"


def read(text):
    """A field reads its text back."""
    return single(float(text.replace(" ", "")))


class Site:
    """The common inputs; rains are (duration, intensity) rows, nine of them."""

    def __init__(self, area, kf, rains, f=1.2, picked=(0, 0)):
        self.area, self.kf, self.f = single(area), single(kf), single(f)
        self.rains = [(single(t), single(i)) for t, i in rains]
        self.rains += [(single(t), 0.0) for t in DURATIONS[len(self.rains):]]
        self.t, self.i = single(picked[0]), single(picked[1])

    def search(self, quantity, only_positive):
        best = 0.0
        for t, i in self.rains:
            if only_positive and t <= 0:
                continue
            y = quantity(t, i)
            if y > best:
                best, self.t, self.i = y, t, i
        return best

    def swale_volume(self, a_s, kf):
        collected = (self.area + a_s) * RATE
        return single(self.search(lambda t, i: (collected * i - a_s * kf / 2) * t * 60 * self.f, False))


def show(name, **values):
    print(f"{name}: " + "; ".join(f"{key} = {value}" for key, value in values.items()))


def rain(site):
    return f"{site.t:g} min {site.i:g} l/s.ha"


def surface(site):
    area = single(site.area / (site.kf * 1e7 / (2 * site.i) - 1))
    text = fixed(area, 1)
    return dict(area=text, stored=read(text))


def swale(site, option):
    text = fixed(single((0.2 if option else 0.1) * site.area), 1)
    a_s = read(text)
    v = site.swale_volume(a_s, site.kf)
    h = single(v / a_s)
    out = dict(area=text, stored=a_s, volume=fixed(v, 1), depth=fixed(h, 2), rain=rain(site))
    if site.kf > 0:
        out["emptying"] = fixed(single(2 * h / site.kf / 3600), 1)
    return out


def storage_coefficient(s_r, d_i, d_a, n, b, h):
    d_i, d_a = single(d_i) / 1000, single(d_a) / 1000
    s_r, b, h = single(s_r), single(b), single(h)
    return single(((d_i**2 * n / s_r - d_a**2 * n) * PI / 4 + b * h) * s_r / (b * h))


def throttled(site, q_dr):
    return single(site.area / 10000 * single(q_dr) / 1000)


def combined(site, option, kf_p, b, h, s_r=0.35, s_rr=None, q_dr=0.0, old_depth=0.0, typed_area=None):
    kf_p, b, h, s_r = single(kf_p), single(b), single(h), single(s_r)
    s_rr = s_r if s_rr is None else s_rr
    text = typed_area or fixed(single((0.2 if option else 0.1) * site.area), 1)
    a_s = read(text)
    v = site.swale_volume(a_s, kf_p)

    def length(t, i):
        time = t * 60 * site.f
        return ((site.area + a_s) * RATE * i - q_dr - v / time) / (b * h * s_rr / time + (b + h / 2) * site.kf / 2)

    length_m = single(site.search(length, True))
    out = dict(area=text, volume=fixed(v, 1), length=fixed(length_m, 1), rain=rain(site), raw_length=length_m)
    depth = old_depth
    if length_m > 0:
        depth = single(v / (length_m * b))
        plan = length_m * b
        out["swale_depth"], out["swale_width"] = fixed(depth, 2), fixed(b, 2)
        verdict, sign = ("dostatečná", "<") if plan < a_s else ("nedostatečná", ">")
        out["verdict"] = f"Navržená vsakovací plocha je {verdict} ( {fixed(plan, 2, False)} {sign} {fixed(a_s, 2)} )."
    out["emptying"] = fixed(single(2 * depth / kf_p / 3600), 1)
    return out


def trench(site, b, h, s_r=0.35, s_rr=None, drain=None):
    b, h = single(b), single(h)
    s_rr = single(s_r) if s_rr is None else s_rr

    def length(t, i):
        return RATE * site.area * i / (b * h * s_rr / (t * 60 * site.f) + (b + h / 2) * site.kf / 2)

    length_m = single(site.search(length, True))
    v = single((RATE * site.area * site.i - (h / 2 + b) * length_m * site.kf / 2) * site.t * 60 * site.f)
    out = dict(length=fixed(length_m, 1), volume=fixed(v, 1), rain=rain(site))
    text = fixed(single((h / 2 + b) * length_m), 1)
    out["area"], out["stored"], out["raw_length"] = text, read(text), length_m
    if drain:
        openings, count, velocity = (single(x) for x in drain)
        q_in = single(10.0**-4 * site.area * site.i)
        q_out = single(openings / 10000 * count * velocity * length_m * 1000)
        if q_out < q_in:
            out["verdict"] = f"Není splněna podmínka výstupního odtoku. ( {fixed(q_out, 2)} < {fixed(q_in, 2)} )"
        else:
            out["verdict"] = f"Podmínka výstupního odtoku je splněna. ( {fixed(q_out, 2)} > {fixed(q_in, 2)} )"
        out["equal"] = q_out == q_in
    return out


def round_shaft(d_i, wall):
    d_i, wall = single(d_i), single(wall)
    return d_i, single(2 * wall + d_i)


def rectangular_shaft(a, b, wall):
    a, b, wall = single(a), single(b), single(wall)
    return (single((4 * a * b / PI) ** 0.5), single((4 * (a + wall) * (b + wall) / PI) ** 0.5))


def shaft(site, diameters, n=1, z_f=1.0, h_f=0.5, h_p=None, z_min=1.5, hpv=0.0):
    d_i, d_a = diameters
    z_f, h_f, z_min, hpv = single(z_f), single(h_f), single(z_min), single(hpv)

    def level(t, i):
        q = RATE * site.area * i
        n_k = q - (PI * (n * d_a) ** 2 / 4) * (site.kf / 2)
        m_k = PI * (n * d_i) ** 2 / (t * 4 * 60 * site.f) + (n * d_a * PI * site.kf) / 4
        return n_k / m_k

    h = single(site.search(level, True))
    text = fixed(single(PI * (n * d_a) ** 2 / 4 + PI * h / 2), 2)
    a_s = read(text)
    h_s = single(z_f + h + h_f + (single(h_p) if h_p is not None else 0.0))
    z_text = fixed(single(z_f + h + z_min), 2)
    z_req = read(z_text)
    v = single((RATE * site.area * site.i - site.kf * a_s / 2) * site.t * site.f)
    k_text = scientific(single((d_a**2 + 2 * h * d_a) / d_i**2 * site.kf))
    k_req = read(k_text)
    if hpv != 0 and abs(hpv) < z_req:
        verdict = "groundwater"
    elif h_s + 0.5 > z_req:
        verdict = "bottom"
    else:
        verdict = "sufficient" if k_req <= single(0.001) else "too permeable"
    return dict(level=fixed(h, 2), area=text, depth=fixed(h_s, 2), required=z_text, volume=fixed(v, 2), k_req=k_text,
                rain=rain(site), verdict=verdict, raw_level=h,
                raw_k=single((d_a**2 + 2 * h * d_a) / d_i**2 * site.kf), raw_z=single(z_f + h + z_min), raw_depth=h_s)


def tank(site, q_s, length, width, depth, slope, settled=False):
    q_s, length, width, depth, slope = (single(x) for x in (q_s, length, width, depth, slope))
    flow = single(RATE * q_s * site.area)
    v = single(site.search(lambda t, i: (RATE * site.area * i - flow) * t * 60 * site.f, False))
    l_h, b_h = single(2 * depth * slope + length), single(2 * depth * slope + width)
    v_n = single(depth / 3 * (l_h * b_h + length * width + math.sqrt(l_h * length * width * b_h)))
    out = dict(flow=fixed(flow, 2), required=fixed(v, 2), volume=fixed(v_n, 2), rain=rain(site))
    if v_n < v:
        out["verdict"] = "too small"
        return out
    k = site.kf if settled else site.kf / 5
    mean = (width * length * k / 2 + b_h * l_h * k / 2) / 2
    out["verdict"] = "volume ok, " + ("proven" if mean >= flow else "exceeded")
    out["mean"], out["raw_flow"] = mean, flow
    return out


STORM = [(5, 300), (10, 200), (15, 160), (20, 130), (30, 100), (45, 75), (60, 60), (90, 45), (120, 36)]


def station(name):
    """The rains of a station at periodicity 0.2, from the tables that the rain database is built from."""
    with open(ROOT / "data/stations.csv", encoding="utf-8") as file:
        number = next(row["number"] for row in csv.DictReader(file, delimiter=";") if row["name"] == name)
    with open(ROOT / f"data/rain/List{number}.csv", encoding="utf-8") as file:
        return list(zip(DURATIONS, (float(row["02"]) for row in csv.DictReader(file))))


def reduced(*parts):
    total = 0.0
    for area, coefficient in parts:
        total = single(total + single(coefficient) * single(area))
    return total


def examples():
    brno, budejovice, praha, zlin = (station(x) for x in ("Brno", "České Budějovice", "Praha - Hostivař", "Zlín"))
    area = reduced((600, 0.9), (400, 0.75))
    show("prulehy", **swale(Site(area, 2e-5, brno), 0))
    show("prulehy, option 1", **swale(Site(area, 2e-5, brno), 1))

    area = reduced((420, 0.9), (180, 0.95))
    for height in 0.3, 0.4:
        show(f"kombinovany-objekt, {height} m", **combined(Site(area, 1e-5, budejovice), 0, 1e-4, 2, height))
    tight = lambda: Site(area, 1e-6, budejovice)
    show("kombinovany-objekt-skrceny-odtok, before", **combined(tight(), 0, 1e-4, 2, 0.4))
    q_dr, s_rr = throttled(tight(), 5), storage_coefficient(0.35, 100, 110, 1, 2, 0.4)
    show("kombinovany-objekt-skrceny-odtok", q_dr=digits(q_dr), s_rr=digits(s_rr),
         **combined(tight(), 0, 1e-4, 2, 0.4, s_rr=s_rr, q_dr=q_dr))

    area = reduced((350, 0.95), (200, 0.75))
    show("ryha", **trench(Site(area, 5e-5, brno), 0.8, 1.2))
    s_rr = storage_coefficient(0.35, 200, 225, 1, 0.8, 1.2)
    for openings in 20, 50:
        show(f"ryha-s-drenem, {openings} cm2/m", s_rr=digits(s_rr),
             **trench(Site(area, 5e-5, brno), 0.8, 1.2, s_rr=s_rr, drain=(openings, 1, 0.05)))

    area = reduced((180, 0.9))
    for count in 1, 2:
        show(f"sachta-kruhova-a, {count}",
             **shaft(Site(area, 1e-4, praha), round_shaft(1, 0.09), n=count, z_f=0.8, hpv=9))
    for count, filter_m in (1, 0.8), (2, 0.8), (2, 0.4):
        show(f"sachta-kruhova-b, {count}, filter {filter_m} m",
             **shaft(Site(area, 1e-4, brno), round_shaft(1.5, 0.15), n=count, z_f=0.8, h_f=filter_m, h_p=0.5, hpv=4))
    area, diameters = reduced((700, 0.9), (300, 0.3)), rectangular_shaft(2.4, 3.8, 0.1)
    show("sachta-obdelnikova", diameters=[digits(d) for d in diameters],
         **shaft(Site(area, 1e-4, brno), diameters, hpv=8))

    park = lambda: Site(reduced((8000, 0.9), (3000, 0.95), (5000, 0.1)), 1e-4, zlin)
    show("nadrz, 20 x 10 m", **tank(park(), 10, 20, 10, 1, 2))
    show("nadrz, 30 x 15 m", **tank(park(), 10, 30, 15, 1, 2))
    show("nadrz-s-usazovanim", **tank(park(), 10, 30, 15, 1, 2, settled=True))


EQUAL = [(10, 300), (20, 150)]  # the same depth of rain, so the same volume


def main():
    show("Surface.IsNegativeWhereTheSoilIsTooSlow", **surface(Site(1000, 1e-5, [], picked=(15, 100))))
    show("Surface.IsStoredAsItIsShown", **surface(Site(1000, 1e-4, [], picked=(15, 150))))
    show("Surface.GroupsThousands", **surface(Site(2881, 1e-4, [], picked=(15, 150))))

    plain = lambda **more: Site(500, 1e-5, STORM, **more)
    show("Swale.TenthOfTheArea", **swale(plain(), 0))
    show("Swale.FifthOfTheArea", **swale(plain(), 1))
    show("Swale.SmallArea", **swale(Site(5.4, 1e-5, STORM), 0))
    show("  unrounded area", depth=fixed(single(Site(5.4, 1e-5, STORM).swale_volume(single(0.54), single(1e-5)) / 0.54), 2))
    show("Swale.GroupedArea", **swale(Site(12345, 1e-5, STORM), 0))
    show("Swale.WithoutCoefficient", **swale(Site(500, 0, STORM), 0))
    show("Swale.SafetyFactor2", **swale(plain(f=2), 0))
    show("Swale.NegativeDuration", **swale(Site(500, 1e-5, [(-1000, 0)] + STORM[1:]), 0))
    show("Swale.Tie", **swale(Site(500, 0, EQUAL), 0))

    show("Combined.Sufficient", **combined(plain(), 0, 1e-4, 0.5, 0.5))
    show("Combined.Insufficient", **combined(plain(), 0, 1e-4, 2, 0.3))
    show("Combined.Option1", **combined(plain(), 1, 5e-5, 1, 1))
    show("Combined.Equal", **combined(Site(200, 0, [(10, 500)], f=1), 0, 1, 1, 1, 0.33))
    show("Combined.TypedArea", **combined(plain(), 0, 1e-4, 0.5, 0.5, typed_area="77"))
    show("Combined.NegativeArea", **combined(Site(500, -0.1, STORM), 0, 1e-4, 0.5, 0.5, typed_area="-1"))
    show("Combined.Tie", **combined(Site(500, 0, EQUAL), 0, 1, 1, 1))
    q_dr = throttled(plain(), 3)
    s_rr = storage_coefficient(0.35, 200, 220, 1, 0.5, 0.5)
    show("Combined.Throttled", q_dr=digits(q_dr), s_rr=digits(s_rr), **combined(plain(), 0, 1e-4, 0.5, 0.5, s_rr=s_rr, q_dr=q_dr))
    s_rr = storage_coefficient(0.35, 0, 0, 1, 0.5, 0.5)
    show("Combined.ThrottledWithoutPipe", s_rr=digits(s_rr), **combined(plain(), 0, 1e-4, 0.5, 0.5, s_rr=s_rr, q_dr=q_dr))

    show("Trench.Plain", **trench(plain(), 1, 1.5))
    show("Trench.Porosity", **trench(plain(), 1, 1.5, 0.3))
    show("Trench.Tie", **trench(Site(500, 0, EQUAL), 1, 1.5))
    show("Trench.NegativeDuration", **trench(Site(500, 1e-5, [(-1000, 900), (0, 900)] + STORM[2:]), 1, 1.5))
    s_rr = storage_coefficient(0.35, 200, 220, 2, 1, 1.5)
    show("Drain.Met", s_rr=digits(s_rr), **trench(plain(), 1, 1.5, s_rr=s_rr, drain=(50, 2, 0.5)))
    show("Drain.NotMet", **trench(plain(), 1, 1.5, s_rr=s_rr, drain=(0.5, 2, 0.5)))
    s_rr = storage_coefficient(0.35, 200, 220, 1, 1, 1.5)
    show("Drain.OnePipe", s_rr=digits(s_rr), **trench(plain(), 1, 1.5, s_rr=s_rr, drain=(0, 1, 0)))
    show("Drain.OneDiameter", inner=digits(storage_coefficient(0.35, 200, 0, 1, 1, 1.5)),
         outer=digits(storage_coefficient(0.35, 0, 220, 1, 1, 1.5)))
    # The pipe without diameters changes nothing: the coefficient is the porosity.
    show("Drain.Equal", **trench(Site(500, 0, [(10, 160)], f=1), 1, 1, 0.36, drain=(12, 1, 0.5)))

    ring = round_shaft(1, 0.1)
    soil = lambda area, kf=1e-4, rains=STORM: Site(area, kf, rains)
    show("Shaft.Sufficient", **shaft(soil(70), ring, z_min=2))
    show("Shaft.TypeB", **shaft(soil(70), ring, h_p=0.4, z_min=2))
    show("Shaft.TwoShafts", **shaft(soil(300), ring, n=2, z_min=2))
    show("Shaft.JustSufficient", **shaft(soil(170), round_shaft(1, 0.12), z_min=2))
    show("Shaft.TooPermeable", **shaft(soil(200), ring, z_min=2))
    show("Shaft.Bottom100", **shaft(soil(100), ring, h_f=1))
    show("Shaft.Bottom130", **shaft(soil(130), ring, h_f=1))
    show("Shaft.Groundwater", **shaft(soil(70), ring, z_min=2, hpv=4.408))
    show("Shaft.GroundwaterAtItsDepth", **shaft(soil(70), ring, z_min=2, hpv=4.41))
    show("Shaft.NoLevel", **shaft(soil(70, 1), ring, z_min=2))
    show("Shaft.Tie", **shaft(soil(70, 0, EQUAL), ring, z_min=2))
    show("Shaft.Ring135", diameters=[digits(d) for d in round_shaft(1.2, 0.14)])
    show("  unrounded wall", diameters=[digits(d) for d in round_shaft(1.2, 0.135)])
    show("Shaft.Square", diameters=[digits(d) for d in rectangular_shaft(1, 1, 0.1)])
    show("Shaft.SideInStore", diameters=[digits(d) for d in rectangular_shaft(1, 2, 0.1)],
         without_wall=[digits(d) for d in rectangular_shaft(1, 2, 0)])
    show("Shaft.Rectangular", diameters=[digits(d) for d in rectangular_shaft(2.4, 1.9, 0.1)],
         **shaft(soil(300), rectangular_shaft(2.4, 1.9, 0.1), z_min=2))

    paved = lambda: Site(5000, 1e-4, STORM)
    show("Tank.Exceeded", **tank(paved(), 10, 20, 10, 1, 2))
    show("Tank.Settled", **tank(paved(), 10, 20, 10, 1, 2, settled=True))
    show("Tank.TooSmall", **tank(paved(), 10, 10, 5, 1, 0))
    show("Tank.Vertical", **tank(paved(), 1, 20, 10, 1, 0))
    show("Tank.FlowKeepsUp", **tank(paved(), 1000, 20, 10, 1, 0))
    show("Tank.NegativeDuration", **tank(Site(5000, 1e-4, [(-10000, 0)] + STORM[1:]), 1, 20, 10, 1, 0))
    show("Tank.ExactVolume", **tank(Site(1000, 1e-4, [(10, 201)], f=1), 1, 4, 3, 1, 0))


if __name__ == "__main__":
    examples() if "--examples" in sys.argv else main()
