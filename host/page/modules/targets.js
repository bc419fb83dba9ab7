/** @typedef {import('./types.js').Frame} Frame */
/** @typedef {import('./types.js').Part} Part */

/** Smallest side of what can be tapped, in pixels of the page. */
const smallest = 24;

/** @param {Frame} frame @param {number} least points @returns {Frame} */
function grown([x, y, width, height], least) {
  const [wide, high] = [Math.max(width, least), Math.max(height, least)];
  return [x - (wide - width) / 2, y - (high - height) / 2, wide, high];
}

/**
 * Where each part can be tapped: its frame, grown to a size that a finger meets. Rows of check boxes that would then
 * overlap move apart, the first one up and the others down.
 * @param {Part[]} parts
 * @param {number} shrink how much smaller than true the phone is shown, up to 1
 * @returns {Frame[]}
 */
export function targetsOf(parts, shrink) {
  const targets = parts.map((part) => grown(part.frame, smallest / shrink));
  const rows = targets.filter((_, i) => parts[i].role === 'checkbox').sort((one, other) => one[1] - other[1]);
  for (let i = 1; i < rows.length; i++) {
    const [upper, lower] = [rows[i - 1], rows[i]];
    const apart = lower[0] >= upper[0] + upper[2] || upper[0] >= lower[0] + lower[2];
    const overlap = upper[1] + upper[3] - lower[1];
    if (apart || overlap <= 0) continue;
    if (i === 1) upper[1] -= overlap;
    else lower[1] += overlap;
  }
  return targets;
}
