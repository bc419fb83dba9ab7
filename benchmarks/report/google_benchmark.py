"""Programs that are made with Google Benchmark."""

import json
import subprocess

_MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}


def run(program, *arguments):
    """What a program measured, each {"name", "milliseconds"} and its counters; dies where a benchmark failed."""
    finished = subprocess.run([program, "--benchmark_format=json", *arguments], check=True, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    results = json.loads(finished.stdout)["benchmarks"]
    for result in results:
        if result.get("error_occurred"):
            raise SystemExit(f"{program}: {result['name']}: {result['error_message']}")
        # Those that take the time by themselves give processor time as if it were that of the clock on the wall.
        measured = "real_time" if result["name"].endswith("/manual_time") else "cpu_time"
        result["milliseconds"] = result[measured] * _MILLISECONDS[result["time_unit"]]
    return results
