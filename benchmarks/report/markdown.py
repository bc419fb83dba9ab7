"""Tables as README.md has them."""

from fractions import Fraction


def time(milliseconds):
    """With three digits: "25.4 µs", "254 ms", "2.54 s"."""
    for unit, length in (("s", 1000), ("ms", 1)):
        if milliseconds >= length:
            return f"{milliseconds / length:#.3g}".rstrip(".") + f" {unit}"
    return f"{1000 * milliseconds:#.3g}".rstrip(".") + " µs"


def number(count):
    """With its thousands apart: "10 000"."""
    return f"{count:,}".replace(",", " ")


def table(heads, rows):
    """A table whose first column is a name or a number and whose others are values."""
    first = "---:" if rows[0][0][0].isdigit() else "---"
    lines = [heads, [first] + ["---:"] * (len(heads) - 1), *rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def verdict(ratio, wanted):
    """A ratio beside the wanted one, "0.4" or "1/60"."""
    if "/" in wanted:
        return [f"1/{1 / ratio:.0f}", f"≤ {wanted}", _met(ratio <= Fraction(wanted))]
    return [f"{ratio:.2f}", f"≤ {wanted}", _met(ratio <= Fraction(wanted))]


def limit(measured, wanted, unit):
    """A measured value beside the largest that is wanted."""
    return [f"{measured:.1f} {unit}", f"≤ {wanted} {unit}", _met(measured <= wanted)]


def _met(is_met):
    return "met" if is_met else "**not met**"
