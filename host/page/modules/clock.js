/** @typedef {import('./store.js').Store} Store */

const minute = 60_000;

/**
 * The host's clock, which may run faster than the browser's. It wakes once a minute of its own time.
 * @param {Store} store
 */
export function createClock(store) {
  /** @type {Set<() => void>} */
  const observers = new Set();
  let timer = 0;

  const now = () => {
    const { state } = store;
    return state ? Date.parse(state.now) + (performance.now() - store.received) * (state.speed || 1) : Date.now();
  };

  function tick() {
    clearTimeout(timer);
    observers.forEach((observer) => observer());
    const wait = (minute - (now() % minute)) / (store.state?.speed || 1);
    timer = setTimeout(tick, Math.max(wait, 250));
  }

  store.subscribe(tick);
  return {
    /** The host's current moment in milliseconds. */
    now,
    /** @param {() => void} observer is called at every full minute and whenever the state came */
    subscribe: (observer) => void observers.add(observer),
  };
}

/** @typedef {ReturnType<typeof createClock>} Clock */
