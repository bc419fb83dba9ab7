import { byId } from './dom.js';
/** @typedef {import('./types.js').State} State */
/** @typedef {import('./types.js').Size} Size */

/** Sizes where the catalogue offers no widget of a family, as on a screen of 390 x 844 points. */
const usual = { systemSmall: [158, 158], systemMedium: [338, 158], systemLarge: [338, 354],
  accessoryCircular: [72, 72], accessoryRectangular: [160, 72] };

/**
 * The grid that the widgets' sizes imply, in points: four columns of cells, two for a small widget.
 * @param {State} state
 */
export function gridOf(state) {
  const offered = new Map(state.catalogue.flatMap((kind) => kind.families.map((size) => [size.family, size])));
  /** @param {string} family */
  const size = (family) => {
    const found = offered.get(family);
    return found ? [found.width, found.height] : usual[family];
  };
  const [small, medium] = [size('systemSmall'), size('systemMedium')];
  const large = offered.has('systemLarge') ? size('systemLarge') : [medium[0], 2 * small[1] + 38];
  const [circular, rectangular] = [size('accessoryCircular'), size('accessoryRectangular')];
  const columnGap = Math.max(medium[0] - 2 * small[0], 0);
  const rowGap = Math.max(large[1] - 2 * small[1], 0);
  return {
    columnGap, rowGap,
    cellWidth: (small[0] - columnGap) / 2,
    cellHeight: (small[1] - rowGap) / 2,
    margin: Math.max((state.screen.width - medium[0]) / 2, 0),
    slot: circular[0], slotHeight: circular[1], slotGap: Math.max(rectangular[0] - 2 * circular[0], 0),
  };
}

/**
 * The frame around the screens: true point sizes, made smaller where the window is narrower than the phone.
 * @param {import('./store.js').Store} store
 * @param {() => void} scaleChanged
 */
export function createPhone(store, scaleChanged) {
  const phone = /** @type {HTMLElement} */ (document.querySelector('.phone'));
  const space = /** @type {HTMLElement} */ (document.querySelector('.phone-space'));
  let shrink = 1;
  let density = 0;

  function fit() {
    const wide = phone.offsetWidth;
    if (!wide) return;
    const shown = Math.min(1, byId('screens').clientWidth / wide);
    const next = Math.min(4, Math.max(1, Math.ceil(devicePixelRatio * 2 - 0.01) / 2));
    const isOther = shown !== shrink || next !== density;
    [shrink, density] = [shown, next];
    if (isOther) {
      phone.style.transform = shown < 1 ? `scale(${shown})` : '';
      space.style.setProperty('--shrink', String(shown));
    }
    space.style.height = `${phone.offsetHeight * shown}px`;
    space.style.width = `${wide * shown}px`;
    if (isOther) scaleChanged();
  }

  store.subscribe(() => {
    const { state } = store;
    if (!state) return;
    for (const [name, value] of Object.entries(gridOf(state))) phone.style.setProperty(`--${name}`, `${value}px`);
    phone.style.setProperty('--width', `${state.screen.width}px`);
    phone.style.setProperty('--height', `${state.screen.height}px`);
    phone.classList.toggle('tall', state.screen.height / state.screen.width > 2);
    phone.dataset.theme = state.theme;
    document.documentElement.dir = state.direction === 'rtl' ? 'rtl' : 'ltr';
    fit();
  });
  new ResizeObserver(fit).observe(byId('screens'));
  window.addEventListener('resize', fit);

  return {
    /** Pixels per point to ask pictures for. */
    density: () => density || 1,
    /** How much smaller than true the phone is shown, up to 1. */
    shrink: () => shrink,
  };
}

/** @typedef {ReturnType<typeof createPhone>} Phone */
