/**
 * The order of a whole place after the widgets of one of its containers have been put into another order: those of
 * other containers stay where they are.
 * @param {number[]} before ids of the place in order
 * @param {number[]} shown ids of the container in their new order
 * @returns {number[]}
 */
export function orderAfter(before, shown) {
  const next = shown.values();
  const own = new Set(shown);
  return before.map((id) => (own.has(id) ? /** @type {number} */ (next.next().value) : id));
}

/**
 * Puts an element at an index among its siblings by moving those around it, so that it keeps focus and pointer.
 * @param {Element} one
 * @param {number} index may lie beyond the ends
 */
export function placeNear(one, index) {
  const others = [...(one.parentElement?.children ?? [])].filter((other) => other !== one);
  const at = Math.min(Math.max(index, 0), others.length);
  const current = [...(one.parentElement?.children ?? [])].indexOf(one);
  if (at < current) one.after(...others.slice(at, current));
  else if (at > current) one.before(...others.slice(current, at));
}
