import { arrange, element, safeAddress } from './dom.js';
import { targetsOf } from './targets.js';
import { t } from './words.js';
/** @typedef {import('./types.js').Part} Part */
/** @typedef {import('./types.js').Widget} Widget */

/** @param {HTMLElement} made @param {Part} part @param {import('./types.js').Frame} [frame] where it is, unless at its own */
function place(made, part, frame = part.frame) {
  const [left, top, width, height] = frame;
  Object.assign(made.style, { left: `${left}px`, top: `${top}px`, width: `${width}px`, height: `${height}px` });
  made.style.setProperty('--middle', `${part.frame[1] + part.frame[3] / 2 - top}px`);
}

/** A text that stands where the picture shows it, for those who hear the page. */
const said = {
  make: () => element('span', { class: 'part' }),
  /** @param {HTMLElement} made @param {Part} part */
  update(made, part) {
    if (made.textContent !== part.label) made.textContent = part.label;
    place(made, part);
  },
};

/**
 * How each part of the meaning becomes a real element over the picture.
 * @type {Record<string, {make: () => HTMLElement,
 *   update: (made: any, part: Part, target: import('./types.js').Frame, widget: Widget,
 *     context: import('./widget.js').Context) => void}>}
 */
const roles = {
  text: said,
  image: {
    make: () => element('span', { class: 'part', role: 'img' }),
    update(made, part) {
      made.setAttribute('aria-label', part.label);
      place(made, part);
    },
  },
  gauge: {
    make: () => element('span', { class: 'part', role: 'meter', 'aria-valuemin': 0 }),
    update(made, part) {
      const [value, total] = [part.value ?? 0, part.total ?? 0];
      made.setAttribute('aria-label', part.label);
      made.setAttribute('aria-valuemax', String(Math.max(total, value)));
      made.setAttribute('aria-valuenow', String(value));
      made.setAttribute('aria-valuetext', t('%1$@ of %2$@', value, total));
      place(made, part);
    },
  },
  link: {
    make: () => element('a', { class: 'control', target: '_blank', rel: 'noopener noreferrer' }),
    update(made, part, target, _, { store }) {
      made.setAttribute('aria-label', part.label);
      setAddress(made, part.url, store.moment !== null);
      place(made, part, target);
    },
  },
  checkbox: {
    make: () => element('input', { type: 'checkbox', class: 'control tick' }),
    update(made, part, target, widget, { store, taps }) {
      const waiting = taps.isWaiting(widget, part);
      made.setAttribute('aria-label', part.label);
      made.checked = waiting ? !part.checked : Boolean(part.checked);
      made.classList.toggle('waiting', waiting);
      made.disabled = store.moment !== null;
      made.onchange = () => taps.tap(widget, part);
      place(made, part, target);
    },
  },
};

/** @param {HTMLElement} link @param {unknown} url @param {boolean} off whether taps are off */
export function setAddress(link, url, off) {
  const address = off ? null : safeAddress(url);
  const attributes = address ? { href: address } : { role: 'link', 'aria-disabled': 'true' };
  for (const name of ['href', 'role', 'aria-disabled']) {
    if (name in attributes) link.setAttribute(name, attributes[name]);
    else link.removeAttribute(name);
  }
}

/** The real check boxes, links and texts that lie over a picture, made from its meaning and kept while they last. */
export function createOverlay() {
  const layer = element('div', { class: 'overlay' });
  /** @type {Map<string, HTMLElement>} */
  let made = new Map();

  return {
    element: layer,
    /** @param {Widget} widget @param {import('./widget.js').Context} context */
    update(widget, context) {
      const hadFocus = layer.contains(document.activeElement);
      /** @type {Map<string, HTMLElement>} */
      const next = new Map();
      const targets = targetsOf(widget.meaning, context.phone.shrink());
      for (const [i, part] of widget.meaning.entries()) {
        const role = roles[part.role] ?? said;
        const name = [part.role, part.id ?? part.url ?? part.label, part.date ?? ''].join('\n');
        let key = name;
        for (let again = 1; next.has(key); again++) key = `${name}\n${again}`;
        const one = made.get(key) ?? role.make();
        role.update(one, part, targets[i], widget, context);
        next.set(key, one);
      }
      made = next;
      arrange(layer, [...made.values()]);
      if (hadFocus && !layer.contains(document.activeElement)) keepFocus(layer);
    },
  };
}

/** Moves the focus of a control that left to one that stayed. @param {HTMLElement} layer */
function keepFocus(layer) {
  const other = layer.querySelector('.control:not(:disabled)') ?? layer.parentElement?.querySelector('.surface');
  /** @type {HTMLElement | null} */ (other)?.focus({ preventScroll: true });
}
