import { byId } from './dom.js';

const places = /** @type {const} */ (['home', 'lock']);

/** The tabs "Home" and "Lock screen"; the address keeps which one is open. */
export function createTabs() {
  /** @param {string} chosen @param {boolean} [focus] */
  function show(chosen, focus = false) {
    for (const place of places) {
      const tab = byId(`tab-${place}`);
      tab.setAttribute('aria-selected', String(place === chosen));
      tab.tabIndex = place === chosen ? 0 : -1;
      byId(place).hidden = place !== chosen;
      if (focus && place === chosen) tab.focus();
    }
    document.documentElement.dataset.screen = chosen;
    history.replaceState(null, '', chosen === 'lock' ? '#lock' : location.pathname);
  }

  for (const place of places) {
    byId(`tab-${place}`).addEventListener('click', () => show(place));
    byId(`tab-${place}`).addEventListener('keydown', (/** @type {KeyboardEvent} */ event) => {
      const other = places[1 - places.indexOf(place)];
      const chosen = { ArrowLeft: other, ArrowRight: other, Home: places[0], End: places[1] }[event.key];
      if (!chosen) return;
      event.preventDefault();
      show(chosen, true);
    });
  }
  show(location.hash === '#lock' ? 'lock' : 'home');
  return { show };
}
