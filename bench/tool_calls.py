#!/usr/bin/python3
"""Time per tool call of kestrova-calc: 20,000 calls of each document tool,
each with its own inputs (flows, densities, diameters, bores drawn at
random), answered in one batch through the built executable.

    python3 bench/tool_calls.py [PATH_TO_KESTROVA_CALC] [CALLS]
"""

import json
import os
import random
import subprocess
import sys
import tempfile
import time


def pressure_drop(rng):
    return {"call": "PressureDrop.CalculateResults",
            "args": {"tab": 0, "crossSection": 0,
                     "record": {"LiquidFlow": round(rng.uniform(1000, 90000), 2),
                                "LiquidDensity": round(rng.uniform(40, 70), 3),
                                "LiquidViscosity": round(rng.uniform(0.0005, 0.01), 5),
                                "Diameter": rng.choice([2.067, 3.068, 4.026, 6.065, 7.981]),
                                "Roughness": 0.00015, "PipeLength": round(rng.uniform(10, 5000), 1)},
                     "texts": {"txtDisplay(12)": "0.5"}, "units": {"cboUnits(10)": 5}}}


def orifice(rng):
    return {"call": "OrificePlates.ComputeOrifice",
            "args": {"tab": 0, "compute": 0, "tap": 0,
                     "record": {"pipeID": 4.026, "orificeDiameter": round(rng.uniform(1, 2.8), 3),
                                "liquidDensity": round(rng.uniform(40, 70), 2), "liquidViscosity": 0.001,
                                "differentialPressure": round(rng.uniform(1, 50), 2), "temperature": 68}}}


def pump_network(rng):
    return {"call": "PumpNetwork.NetCalc",
            "args": {"NetFlow": [0, 0, 0, round(rng.uniform(10000, 90000), 1)], "NetPDest": [0, 0, 0, 100, 0, 200],
                     "SegDensity": [0] + [round(rng.uniform(50, 65), 2)] * 11,
                     "SegID": [0] + [rng.choice([3.068, 4.026, 6.065])] * 11,
                     "SegVisc": [0] + [0.001] * 11, "MinValveDp": 0}}


def main():
    calc = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "build", "bin",
                                                                  "kestrova-calc")
    calls = int(sys.argv[2]) if len(sys.argv) > 2 else 20000
    rng = random.Random(1)
    for name, request in (("pressure drop", pressure_drop), ("orifice", orifice), ("pump network", pump_network)):
        batch = "".join(json.dumps(dict(id=i, **request(rng))) + "\n" for i in range(calls)).encode()
        with tempfile.TemporaryFile() as requests:
            requests.write(batch)
            requests.seek(0)
            start = time.perf_counter()
            subprocess.run([calc], stdin=requests, stdout=subprocess.DEVNULL, check=True)
            seconds = time.perf_counter() - start
        # The first hundred answers again, to show that the calls were answered.
        first = b"".join(batch.splitlines(keepends=True)[:100])
        answers = subprocess.run([calc], input=first, capture_output=True, check=True).stdout.splitlines()
        failed = sum(1 for line in answers if not json.loads(line)["ok"])
        print(f"{name:<14} {calls} calls in {seconds:.3f} s: {1e6 * seconds / calls:6.1f} us per call"
              f"{f' ({failed} of the first 100 not ok)' if failed else ''}")


if __name__ == "__main__":
    main()
