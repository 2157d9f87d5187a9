#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Writes the Shapiro-Wilk tables wstableA1 (coefficients) and wstableA2 (critical values of W
# at alpha 1, 2, 5 and 10 percent) for 3 to 99 points, one line per count: "n) v1, v2, ...".
#
# Coefficients: Royston's approximation (Applied Statistics algorithm R94, 1995), which agrees
# with the published Shapiro-Wilk coefficients to about four places and is what common
# statistics packages use. Critical values: Royston's normalising transformation of W
# (exact for 3 points), solved for the W whose p-value is alpha.
# Standard library only:  python3 Library/tools/make_wstables.py [output folder]
import math
import sys
from pathlib import Path
from statistics import NormalDist

NORMAL = NormalDist()
SMALLEST, LARGEST = 3, 99
ALPHAS = (0.01, 0.02, 0.05, 0.10)


def poly(coefficients, x):
    return sum(c * x**k for k, c in enumerate(coefficients))


def coefficients(n):
    """The n // 2 coefficients a(1) > a(2) > ... of the test for n points."""
    if n == 3:
        return [math.sqrt(0.5)]
    m = [-NORMAL.inv_cdf((i - 0.375) / (n + 0.25)) for i in range(1, n // 2 + 1)]
    summ2 = 2 * sum(v * v for v in m)
    ssumm2 = math.sqrt(summ2)
    rsn = 1 / math.sqrt(n)
    a1 = poly([0.0, 0.221157, -0.147981, -2.071190, 4.434685, -2.706056], rsn) + m[0] / ssumm2
    if n > 5:
        a2 = poly([0.0, 0.042981, -0.293762, -1.752461, 5.682633, -3.582633], rsn) + m[1] / ssumm2
        fac = math.sqrt((summ2 - 2 * m[0] ** 2 - 2 * m[1] ** 2) / (1 - 2 * a1**2 - 2 * a2**2))
        return [a1, a2] + [v / fac for v in m[2:]]
    fac = math.sqrt((summ2 - 2 * m[0] ** 2) / (1 - 2 * a1**2))
    return [a1] + [v / fac for v in m[1:]]


def p_value(w, n):
    """Royston's upper-tail p-value of W for n points."""
    if n == 3:
        return max(0.0, min(1.0, 6 / math.pi * (math.asin(math.sqrt(w)) - math.asin(math.sqrt(0.75)))))
    w1 = math.log(1 - w)
    if n <= 11:
        gamma = poly([-2.273, 0.459], n)
        if w1 >= gamma:  # W so small that the transformation no longer applies
            return 1e-99
        y = -math.log(gamma - w1)
        mean = poly([0.5440, -0.39978, 0.025054, -6.714e-4], n)
        sd = math.exp(poly([1.3822, -0.77857, 0.062767, -0.0020322], n))
    else:
        ln = math.log(n)
        y = w1
        mean = poly([-1.5861, -0.31082, -0.083751, 0.0038915], ln)
        sd = math.exp(poly([-0.4803, -0.082676, 0.0030302], ln))
    return 1 - NORMAL.cdf((y - mean) / sd)


def critical_value(n, alpha):
    """The W whose p-value is alpha; the p-value grows with W."""
    lo, hi = 0.75 if n == 3 else 0.0, 1.0 - 1e-15
    for _ in range(200):
        mid = (lo + hi) / 2
        if p_value(mid, n) < alpha:
            lo = mid
        else:
            hi = mid
    return (lo + hi) / 2


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    a1 = [f"{n}) " + ", ".join(f"{a:.8f}" for a in coefficients(n)) for n in range(SMALLEST, LARGEST + 1)]
    a2 = [f"{n}) " + ", ".join(f"{critical_value(n, alpha):.6f}" for alpha in ALPHAS)
          for n in range(SMALLEST, LARGEST + 1)]
    (folder / "wstableA1").write_text("\n".join(a1) + "\n")
    (folder / "wstableA2").write_text("\n".join(a2) + "\n")


if __name__ == "__main__":
    main()
