#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Writes the reference values that tests/mathlib checks the statistics and deviates against.
# Run once by hand with Debian's python3-numpy and python3-scipy (/usr/bin/python3); the test
# suite only reads the files it writes:
#   statistics_reference.txt  data sets, then "FUNCTION set argument expected" lines
#   normal_reference.txt      NORDIST and NORPROB of given parameters
#   shapiro_reference.txt     samples with scipy.stats.shapiro's W and p-value
#   deviate_bins.txt          bin edges and probabilities for chi-square tests of the deviates
#   uniform_reference.txt     the first uniform numbers of a fresh generator
# Moments are exact (fractions over the stored doubles); distributions come from scipy.
# Where the language's own algorithm departs from the textbook (the percentile with a 32-bit
# position, SKEW and KURT with the sample deviation below 31 points, the gamma draw for a
# shape below 1, the beta draw by normal proposals) the values follow that algorithm.
import math
from fractions import Fraction
from pathlib import Path

import numpy as np
from scipy import integrate, special, stats

HERE = Path(__file__).resolve().parent
rng = np.random.default_rng(20240611)


def g(x):
    return repr(float(x))


# ---- data sets -------------------------------------------------------------------------
def data_sets():
    sets = {
        "small": [1.0, 2.0, 3.0, 4.0],
        "ties": [3.0, 1.0, 2.0, 2.0, 5.0, 2.0, 4.0, 4.0, 9.0],
        "normal20": list(rng.normal(10, 3, 20)),
        "normal30": list(rng.normal(-5, 2, 30)),
        "normal31": list(rng.normal(-5, 2, 31)),
        "expo99": list(rng.exponential(2.0, 99)),
        # Large offset: the deviations are a millionth of the values.
        "offset": list(1e9 + rng.normal(0, 1000, 25)),
        # Tiny variance around 1.
        "tiny": list(1 + rng.normal(0, 1e-9, 40)),
        "negative": list(rng.normal(0, 50, 15)),
    }
    return sets


def part_sd(xs):
    n = len(xs)
    mean = sum(map(Fraction, xs)) / n
    ss = sum((Fraction(x) - mean) ** 2 for x in xs)
    return math.sqrt(float(ss / (n - 1) if n < 31 else ss / n))


def part_percentile(xs, p):
    s = sorted(xs)
    n = len(s)
    r = np.float32(p * 0.01 * (n + 1) - 1)
    if r >= n - 1:
        return s[-1]
    if r <= 0:
        return s[0]
    if r == math.floor(r):
        return s[int(r)]
    f, c = math.floor(r), math.ceil(r)
    frac = float(np.float32(r - np.float32(f)))
    return s[f] + (s[c] - s[f]) * frac


def statistics_lines(sets):
    lines = []
    for name, xs in sets.items():
        lines.append("set " + name + " " + " ".join(g(x) for x in xs))
    for name, xs in sets.items():
        fx = [Fraction(x) for x in xs]
        n = len(xs)
        mean = sum(fx) / n
        devs = [x - mean for x in fx]
        ss = sum(d * d for d in devs)
        s = part_sd(xs)
        out = {
            "MEAN": mean,
            "SUMX": sum(fx),
            "SUMXSQ": sum(x * x for x in fx),
            "SUMDEV": sum(devs),
            "AVGDEV": sum(abs(d) for d in devs) / n,
            "SUMDEVSQ": ss,
            "SVAR": ss / (n - 1),
            "PVAR": ss / n,
            "MEDIAN": float(np.median(xs)),
            "MIN": min(xs),
            "MAX": max(xs),
            "RANGE": Fraction(max(xs)) - Fraction(min(xs)),
            # The language's SKEW and KURT divide by s^3 and s^4 with its own choice of s.
            "SKEW": sum(d**3 for d in devs) / n / Fraction(s) ** 3,
            "KURT": sum(d**4 for d in devs) / n / Fraction(s) ** 4 - 3,
        }
        if min(xs) > 0:
            out["GMEAN"] = stats.gmean(xs)
            out["HMEAN"] = stats.hmean(xs)
        for key, value in out.items():
            lines.append(f"{key} {name} 0 {g(value)}")
        for p in (0, 10, 25, 33.3, 50, 75, 90, 100):
            lines.append(f"PRCTLE {name} {p!r} {g(part_percentile(xs, p))}")
        v = xs[len(xs) // 2]
        ranks = stats.rankdata(xs)
        lines.append(f"RANK {name} {g(v)} {g(ranks[len(xs) // 2])}")
        lines.append(f"ZSCORE {name} {g(xs[0])} {g((Fraction(xs[0]) - mean) / Fraction(s))}")
        # The textbook skewness, to show where the sample deviation makes the difference.
        pop_skew = stats.skew(xs, bias=True)
        lines.append(f"# scipy population skew of {name}: {pop_skew!r}")
    return lines


def normal_lines():
    lines = []
    for mean, sd, x in [(0, 1, 0), (0, 1, 1.5), (10, 3, 4), (-2, 0.5, -2.7), (1e6, 1e3, 1.001e6),
                        (0, 1e-3, 2e-3), (5, 2, 30)]:
        lines.append(f"NORDIST {g(mean)} {g(sd)} {g(x)} {g(stats.norm.pdf(x, mean, sd))}")
    for mean, sd, x1, x2 in [(0, 1, -1, 1), (0, 1, 1, -1), (0, 1, -3, 0.5), (100, 15, 85, 130),
                             (0, 1, -8, 8), (3, 0.01, 2.99, 3.02), (0, 1, 2, 6)]:
        lo, hi = min(x1, x2), max(x1, x2)
        area = stats.norm.cdf(hi, mean, sd) - stats.norm.cdf(lo, mean, sd)
        lines.append(f"NORPROB {g(mean)} {g(sd)} {g(x1)} {g(x2)} {g(area)}")
    return lines


def shapiro_lines():
    lines = []
    for n in (3, 4, 5, 7, 11, 12, 20, 35, 50, 75, 99):
        for kind in ("normal", "skewed", "offset"):
            if kind == "normal":
                xs = rng.normal(0, 1, n)
            elif kind == "skewed":
                xs = rng.exponential(1, n) ** 2
            else:
                xs = 1000 + rng.normal(0, 0.5, n)
            res = stats.shapiro(xs)
            lines.append(f"{n} {res.statistic!r} {res.pvalue!r} " + " ".join(g(x) for x in xs))
    return lines


# ---- deviates ---------------------------------------------------------------------------
def chi_critical(bins):
    return stats.chi2.ppf(0.999, bins - 1)


def continuous_case(label, function, params, cdf, edges):
    edges = np.asarray(edges, dtype=float)
    cdfs = np.concatenate(([0.0], [cdf(e) for e in edges], [1.0]))
    probs = np.diff(cdfs)
    return [f"case {label} {function} " + " ".join(g(p) for p in params) + f" {g(chi_critical(len(probs)))}",
            "edges " + " ".join(g(e) for e in edges),
            "probs " + " ".join(g(p) for p in probs)]


def quantile_edges(dist, bins=40):
    return dist.ppf(np.arange(1, bins) / bins)


def gamma_small_shape_cdf(a, b):
    # The language's draw for a < 1 takes x = p^(1/a) only for p <= 0.1, so its density is
    # x^(a-1) e^-x up to x0 = 0.1^(1/a), plus e^-x min(1, x^(a-1)) everywhere.
    x0 = 0.1 ** (1 / a)
    ga = special.gamma(a)

    def mass(t):
        t = max(t, 0.0)
        first = ga * special.gammainc(a, min(t, x0))
        second = 1 - math.exp(-min(t, 1.0))
        third = ga * (special.gammainc(a, t) - special.gammainc(a, 1.0)) if t > 1 else 0.0
        return first + second + third

    total = mass(math.inf)
    return lambda x: mass(x / b) / total


def beta_rejection_cdf(a, b):
    # Normal proposals N(m, d^2) inside [0, 1], accepted with min(1, target / proposal).
    p, q = a - 1, b - 1
    s = p + q
    m, d = p / s, 0.5 / math.sqrt(s)

    def density(x):
        if x <= 0 or x >= 1:
            return 0.0
        gg = (x - m) / d
        log_target = s * math.log(s) + p * math.log(x / p) + q * math.log((1 - x) / q)
        return math.exp(min(-gg * gg / 2, log_target))

    total = integrate.quad(density, 0, 1, limit=200)[0]
    return lambda x: integrate.quad(density, 0, min(max(x, 0), 1), limit=200)[0] / total


def discrete_case(label, function, params, pmf, support):
    # One bin per value, the thin tails merged so every bin expects at least 20 of 100000.
    probs = [pmf(k) for k in support]
    edges, merged, acc = [], [], 0.0
    for k, pk in zip(support, probs):
        acc += pk
        if acc * 100000 >= 20:
            edges.append(k + 0.5)
            merged.append(acc)
            acc = 0.0
    merged[-1] += acc + (1 - sum(probs))
    edges = edges[:-1]
    return [f"case {label} {function} " + " ".join(g(p) for p in params) + f" {g(chi_critical(len(merged)))}",
            "edges " + " ".join(g(e) for e in edges),
            "probs " + " ".join(g(p) for p in merged)]


def deviate_lines():
    lines = []
    gam = stats.gamma(2.5, scale=1.5)
    lines += continuous_case("gamma_large_shape", "GAMDEV", (2.5, 1.5), gam.cdf, quantile_edges(gam))
    gam1 = stats.gamma(1, scale=2)
    lines += continuous_case("gamma_shape_one", "GAMDEV", (1, 2), gam1.cdf, quantile_edges(gam1))
    small = gamma_small_shape_cdf(0.5, 2)
    lines += continuous_case("gamma_small_shape", "GAMDEV", (0.5, 2), small,
                             quantile_edges(stats.gamma(0.5, scale=2)))
    small3 = gamma_small_shape_cdf(0.3, 1)
    lines += continuous_case("gamma_shape_0_3", "GAMDEV", (0.3, 1), small3,
                             quantile_edges(stats.gamma(0.3, scale=1)))
    chi4 = stats.chi2(4)
    lines += continuous_case("chi_square_4", "CHIDEV", (4,), chi4.cdf, quantile_edges(chi4))
    chi1 = gamma_small_shape_cdf(0.5, 2)
    lines += continuous_case("chi_square_1", "CHIDEV", (1,), chi1, quantile_edges(stats.chi2(1)))
    f = stats.f(4, 6)
    lines += continuous_case("f_4_6", "FDEV", (4, 6), f.cdf, quantile_edges(f))
    ncx = stats.ncx2(5, 2)
    lines += continuous_case("noncentral_5_2", "NCHIDEV", (5, 2), ncx.cdf, quantile_edges(ncx))
    be = stats.beta(0.5, 2)
    lines += continuous_case("beta_small_shape", "BETADEV", (0.5, 2), be.cdf, quantile_edges(be))
    br = beta_rejection_cdf(2, 3)
    lines += continuous_case("beta_rejection_2_3", "BETADEV", (2, 3), br,
                             quantile_edges(stats.beta(2, 3), 25))
    br2 = beta_rejection_cdf(1.5, 8)
    lines += continuous_case("beta_rejection_1_5_8", "BETADEV", (1.5, 8), br2,
                             quantile_edges(stats.beta(1.5, 8), 25))
    for label, n, p in (("binomial_sum", 10, 0.3), ("binomial_poisson", 100, 0.005),
                        ("binomial_rejection", 100, 0.5), ("binomial_high_p", 60, 0.8)):
        lines += discrete_case(label, "BNLDEV", (n, p), stats.binom(n, p).pmf, range(0, n + 1))
    return lines


def uniform_lines():
    # The generator of the language in plain integers, from a fresh object (seed -5, one
    # number discarded).
    m1, a1, q1, r1 = 2147483563, 40014, 53668, 12211
    m2, a2, q2, r2 = 2147483399, 40692, 52774, 3791

    def step(s, m, a, q, r):
        k = s // q  # s is positive here, so floor and truncation agree
        s = a * (s - k * q) - k * r
        return s + m if s < 0 else s

    seed = 5
    seed2 = seed
    table = [0] * 32
    for j in range(39, -1, -1):
        seed = step(seed, m1, a1, q1, r1)
        if j < 32:
            table[j] = seed
    last = table[0]
    out = []
    for _ in range(21):
        seed = step(seed, m1, a1, q1, r1)
        seed2 = step(seed2, m2, a2, q2, r2)
        j = last // 67108862
        last = table[j] - seed2
        table[j] = seed
        if last < 1:
            last += 2147483562
        out.append(last)
    return ["shuffle " + " ".join(str(v) for v in out[1:])]


def write(name, lines):
    (HERE / name).write_text("\n".join(lines) + "\n")


if __name__ == "__main__":
    write("statistics_reference.txt", statistics_lines(data_sets()))
    write("normal_reference.txt", normal_lines())
    write("shapiro_reference.txt", shapiro_lines())
    write("deviate_bins.txt", deviate_lines())
    write("uniform_reference.txt", uniform_lines())
