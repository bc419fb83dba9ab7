"""What the scripts measure: the release build with its benchmarks."""

import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
RELEASE = ROOT / "build" / "release"


def make(packages="benchmark"):
    """Installs what is missing and builds; says nothing unless that fails."""
    subprocess.run([ROOT / "scripts" / "packages", packages], check=True)
    for command in (["cmake", "--preset", "release", "-DMIRUNE_BENCHMARKS=ON"],
                    ["cmake", "--build", "--preset", "release", "--target", "programs", "benchmarks"]):
        finished = subprocess.run(command, cwd=ROOT, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if finished.returncode != 0:
            raise SystemExit(finished.stdout)


def program(name):
    return RELEASE / "bin" / name
