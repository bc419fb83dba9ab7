/**
 * Makes an element. Values that are functions become listeners ("onclick"), true becomes an empty attribute, and
 * null, undefined and false leave it out.
 * @param {string} name
 * @param {Record<string, unknown>} [attributes]
 * @param {...(Node | string | null | undefined)} children
 * @returns {HTMLElement}
 */
export function element(name, attributes = {}, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) {
    if (value === null || value === undefined || value === false) continue;
    if (typeof value === 'function') made.addEventListener(key.slice(2), /** @type {EventListener} */ (value));
    else made.setAttribute(key, value === true ? '' : String(value));
  }
  made.append(...children.filter((child) => child !== null && child !== undefined));
  return made;
}

/** @param {string} id @returns {any} the element of the page with this id */
export function byId(id) {
  const found = document.getElementById(id);
  if (!found) throw new Error(`the page lacks #${id}`);
  return found;
}

/**
 * Gives a parent exactly these children, in this order, and moves as little as it can: an element that is moved loses
 * the focus.
 * @param {Element} parent
 * @param {Element[]} children
 */
export function arrange(parent, children) {
  const kept = new Set(children);
  for (const child of [...parent.children]) if (!kept.has(child)) child.remove();
  const focused = children.findIndex((child) => child.contains(document.activeElement));
  if (focused < 0) {
    children.forEach((child, i) => {
      if (parent.children[i] !== child) parent.insertBefore(child, parent.children[i] ?? null);
    });
    return;
  }
  const anchor = children[focused];
  if (anchor.parentElement !== parent) parent.append(anchor);
  for (const child of children.slice(0, focused)) anchor.before(child);
  for (const child of children.slice(focused + 1)) parent.append(child);
}

/** @param {unknown} url @returns {string | null} an address that a link may lead to */
export function safeAddress(url) {
  try {
    const { protocol, href } = new URL(String(url));
    return ['javascript:', 'data:', 'vbscript:', 'blob:', 'file:'].includes(protocol) ? null : href;
  } catch {
    return null;
  }
}
