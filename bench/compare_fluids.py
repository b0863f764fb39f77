#!/usr/bin/python3
"""Kestrova's correlations beside the same correlations in the Python library
`fluids` (Debian's python3-fluids), on the same inputs.

Each correlation is timed in Kestrova's library through kestrova_bench (the
least time per call of seven repetitions) and in fluids with timeit (the least
of seven repetitions). The figures of both are computed first, through
kestrova-calc and through fluids, so that the table shows the two agree on the
inputs before it compares their speed.

    /usr/bin/python3 bench/compare_fluids.py [BUILD_BIN_FOLDER]
"""

import json
import math
import os
import subprocess
import sys
import tempfile
import timeit

from fluids.flow_meter import C_Reader_Harris_Gallagher
from fluids.friction import Churchill_1977, friction_factor
from fluids.two_phase import Friedel

LB = 0.45359237  # kg
FT = 0.3048  # m
INCH = 0.0254  # m
CP = 0.001  # Pa s
PSI = 6894.757293168  # Pa

# The same inputs on both sides, in Kestrova's units and in SI for fluids.
FRICTION = {"reynolds": 100000, "relativeRoughness": 0.0002, "kind": 1, "aspectRatio": 1, "diameterRatio": 1}
ORIFICE = {"D": 4.026, "beta": 0.6, "Re": 250000, "tap": 0}
LINE = {"orientation": "Horizontal", "diameter": 4.026, "roughness": 0.00015, "gasFlow": 2000, "liquidFlow": 40000,
        "gasDensity": 0.25, "liquidDensity": 62.3, "gasViscosity": 0.018, "liquidViscosity": 0.9,
        "surfaceTension": 0.072, "length": 200}


def fluids_friction():
    return Churchill_1977(FRICTION["reynolds"], FRICTION["relativeRoughness"])


def fluids_orifice():
    D = ORIFICE["D"] * INCH
    mu = CP
    m = ORIFICE["Re"] * math.pi / 4 * D * mu  # the mass flow of that Reynolds number
    return C_Reader_Harris_Gallagher(D, ORIFICE["beta"] * D, 1000.0, mu, m, "flange")


def fluids_friedel():
    m = (LINE["gasFlow"] + LINE["liquidFlow"]) * LB / 3600
    x = LINE["gasFlow"] / (LINE["gasFlow"] + LINE["liquidFlow"])
    rho_l = LINE["liquidDensity"] * LB / FT ** 3
    rho_g = LINE["gasDensity"] * LB / FT ** 3
    drop = Friedel(m, x, rho_l, rho_g, LINE["liquidViscosity"] * CP, LINE["gasViscosity"] * CP,
                   LINE["surfaceTension"], LINE["diameter"] * INCH, LINE["roughness"] * FT, LINE["length"] * FT)
    return drop / PSI


def friedel_steps():
    """fluids' Friedel drop (psi), and the drop after each of Kestrova's
    choices in turn, taken in fluids' own SI formulation: the multiplier's
    constants, the smooth-pipe friction factor of Friedel without roughness,
    and each phase's Reynolds number from that phase's own flow rather than
    the whole flow. The last figure is Kestrova's drop."""
    m = (LINE["gasFlow"] + LINE["liquidFlow"]) * LB / 3600
    x = LINE["gasFlow"] / (LINE["gasFlow"] + LINE["liquidFlow"])
    rho_l, rho_g = LINE["liquidDensity"] * LB / FT ** 3, LINE["gasDensity"] * LB / FT ** 3
    mu_l, mu_g = LINE["liquidViscosity"] * CP, LINE["gasViscosity"] * CP
    D, L, sigma = LINE["diameter"] * INCH, LINE["length"] * FT, LINE["surfaceTension"]
    A = math.pi / 4 * D ** 2
    G = m / A

    def smooth(Re):
        return 64 / Re if Re < 1055 else (0.86859 * math.log(Re / (1.964 * math.log(Re) - 3.8215))) ** -2

    def drop(kestrova_multiplier, smooth_friction, phase_flows):
        W_l, W_g = (m * (1 - x), m * x) if phase_flows else (m, m)
        Re_l, Re_g = W_l / A * D / mu_l, W_g / A * D / mu_g
        if smooth_friction:
            f_l, f_g = smooth(Re_l), smooth(Re_g)
        else:
            f_l = friction_factor(Re=Re_l, eD=LINE["roughness"] * FT / D)
            f_g = friction_factor(Re=Re_g, eD=LINE["roughness"] * FT / D)
        E = (1 - x) ** 2 + x ** 2 * rho_l * f_g / (rho_g * f_l)
        rho_h = 1 / (x / rho_g + (1 - x) / rho_l)
        Fr = G ** 2 / (9.80665 * D * rho_h ** 2)
        We = G ** 2 * D / sigma / rho_h
        if kestrova_multiplier:
            phi = E + 3.43 * x ** 0.685 * (1 - x) ** 0.24 * (rho_l / rho_g) ** 0.8 * (mu_g / mu_l) ** 0.22 \
                * (1 - mu_g / mu_l) ** 0.89 * Fr ** -0.047 * We ** -0.0334
        else:
            phi = E + 3.24 * x ** 0.78 * (1 - x) ** 0.224 * (rho_l / rho_g) ** 0.91 * (mu_g / mu_l) ** 0.19 \
                * (1 - mu_g / mu_l) ** 0.7 / (Fr ** 0.0454 * We ** 0.035)
        return phi * f_l * L / D * G ** 2 / (2 * rho_l) / PSI

    return [("fluids' Friedel, rebuilt", drop(False, False, False)),
            ("+ Kestrova's multiplier (3.43 x^0.685 ... We^-0.0334)", drop(True, False, False)),
            ("+ Friedel's smooth-pipe friction factor, no roughness", drop(True, True, False)),
            ("+ each phase's Reynolds number from its own flow", drop(True, True, True))]


def kestrova_figures(calc):
    requests = [{"id": 1, "call": "FrictionFactor", "args": FRICTION},
                {"id": 2, "call": "OrificeDischargeCoefficient", "args": ORIFICE},
                {"id": 3, "call": "TwoPhaseDrop", "args": LINE}]
    answer = subprocess.run([calc], input="".join(json.dumps(r) + "\n" for r in requests), capture_output=True,
                            text=True, check=True).stdout.splitlines()
    results = [json.loads(line)["result"] for line in answer]
    return results[0]["value"], results[1]["value"], results[2]["pressureDrop"], results[2]["correlation"]


def kestrova_times(bench):
    with tempfile.NamedTemporaryFile(suffix=".json", delete=False) as out:
        path = out.name
    try:
        subprocess.run([bench, "--benchmark_filter=^BM_(FrictionFactorTurbulent|OrificeDischargeCoefficient|TwoPhaseDrop)$",
                        "--benchmark_repetitions=7", f"--benchmark_out={path}", "--benchmark_out_format=json"],
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
        with open(path) as f:
            runs = json.load(f)["benchmarks"]
    finally:
        os.unlink(path)
    least = {}
    for run in runs:
        if run.get("run_type") == "iteration":
            name = run["run_name"]
            scale = {"ns": 1, "us": 1e3, "ms": 1e6}[run["time_unit"]]
            least[name] = min(least.get(name, math.inf), run["cpu_time"] * scale)
    return least


def fluids_time(function):
    number = 20000
    return min(timeit.repeat(function, number=number, repeat=7)) / number * 1e9


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "build", "bin")
    calc = os.path.join(folder, "kestrova-calc")
    bench = os.path.join(folder, "kestrova_bench")
    friction, coefficient, drop, correlation = kestrova_figures(calc)
    times = kestrova_times(bench)
    rows = [
        ("friction factor, turbulent (Re 1e5)", friction, fluids_friction(), "BM_FrictionFactorTurbulent",
         fluids_friction, ""),
        ("orifice discharge coefficient, flange taps", coefficient, fluids_orifice(),
         "BM_OrificeDischargeCoefficient", fluids_orifice, ""),
        (f"two-phase drop, psi (Kestrova: all three correlations, {correlation} chosen)", drop, fluids_friedel(),
         "BM_TwoPhaseDrop", fluids_friedel, " (fluids: Friedel alone)"),
    ]
    print(f"{'correlation':<72} {'Kestrova':>12} {'fluids':>12} {'Kestrova ns':>12} {'fluids ns':>10} {'fluids/Kestrova':>16}")
    for title, ours, theirs, name, function, note in rows:
        ours_ns = times[name]
        theirs_ns = fluids_time(function)
        print(f"{title:<72} {ours:>12.6g} {theirs:>12.6g} {ours_ns:>12.0f} {theirs_ns:>10.0f} {theirs_ns / ours_ns:>15.1f}x{note}")
    print(f"\nWhy the two-phase drops differ ({drop:.6g} psi in Kestrova, {fluids_friedel():.6g} psi in fluids):")
    for step, value in friedel_steps():
        print(f"  {step:<60} {value:>10.6g} psi")
    print("  (what remains is Kestrova's 2.42 lb/ft-hr per cP in its Reynolds numbers, and its singles)")


if __name__ == "__main__":
    main()
