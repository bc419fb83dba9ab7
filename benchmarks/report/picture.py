"""The picture that everybody draws: the medium widget of tasks of the sample container, at twice its size."""

import os
import subprocess

from report.build import ROOT, program

WIDTH, HEIGHT, SCALE = 338, 158, 2  # in points, and pixels to the point
PEERS = ROOT / "build" / "peers"

_MORNING = ["--now", "2026-11-21T08:00:00Z", "--timezone", "UTC"]


class Painters:
    """Whoever draws it, each by a command that ends when its file is written."""

    def __init__(self, folder):
        container = str(folder / "container")
        self._drawn = folder / "picture.png"
        self._card = folder / "card.svg"
        self._profile = folder / "profile"
        subprocess.run([program("mirune"), "demo", container, *_MORNING], check=True, stdout=subprocess.DEVNULL)
        self._render = [program("mirune"), "render", "tasks", "systemMedium", "--container", container, *_MORNING,
                        "--locale", "en_US", "--scale", str(SCALE), "-o"]
        subprocess.run([*self._render, self._card], check=True)
        os.environ["MIRUNE_IMAGES"] = str(ROOT / "build" / "release" / "share" / "mirune" / "images")

    def commands(self):
        return {
            "mirune": [*self._render, self._drawn],
            "rsvg-convert": ["rsvg-convert", "--zoom", str(SCALE), "--output", self._drawn, self._card],
            "satori + resvg": self.card("satori"),
            "takumi": self.card("takumi"),
            "Chromium": ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                         f"--user-data-dir={self._profile}", "--default-background-color=00000000",
                         f"--force-device-scale-factor={SCALE}", f"--window-size={WIDTH},{HEIGHT}",
                         f"--screenshot={self._drawn}", self._card.as_uri()],
        }

    def card(self, renderer, *count):
        """A card renderer's command; see peers/draw.mjs."""
        return ["node", PEERS / f"{renderer}.mjs", self._drawn, *count]

    def check(self, name):
        """Dies unless the last command has drawn a picture of the right size; removes it."""
        head = self._drawn.read_bytes()[:24]
        size = (int.from_bytes(head[16:20], "big"), int.from_bytes(head[20:24], "big"))
        if size != (WIDTH * SCALE, HEIGHT * SCALE):
            raise SystemExit(f"{name} drew {size[0]}x{size[1]} pixels")
        self._drawn.unlink()
