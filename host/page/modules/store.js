/** @typedef {import('./types.js').State} State */
/** @typedef {import('./types.js').Widget} Widget */
/** @typedef {import('./types.js').WidgetAt} WidgetAt */

/**
 * What the page knows: the server's last state and, while the time slider is away from now, how the widgets look then.
 * @param {() => Promise<State>} fetchState
 */
export function createStore(fetchState) {
  /** @type {State | null} */
  let state = null;
  let received = 0;
  /** @type {{moment: number | null, widgets: Map<number, WidgetAt>}} */
  let view = { moment: null, widgets: new Map() };
  /** @type {Set<() => void>} */
  const observers = new Set();
  /** @type {Promise<void> | null} */
  let running = null;
  let again = false;

  const notify = () => observers.forEach((observer) => observer());

  async function load() {
    do {
      again = false;
      state = await fetchState();
      received = performance.now();
      notify();
    } while (again);
  }

  return {
    get state() { return state; },
    /** Milliseconds of performance.now() when the state came. */
    get received() { return received; },
    /** The moment that the time slider shows, in milliseconds; null: now. */
    get moment() { return view.moment; },
    /** @param {() => void} observer is called after every change */
    subscribe: (observer) => void observers.add(observer),
    notify,
    /** Fetches the state; a call during another one makes that one fetch once more. */
    refresh() {
      if (running) again = true;
      running ??= load().finally(() => { running = null; });
      return running;
    },
    /** @param {number | null} moment @param {WidgetAt[]} [widgets] */
    look(moment, widgets = []) {
      view = { moment, widgets: new Map(widgets.map((widget) => [widget.id, widget])) };
      notify();
    },
    /** @param {'home' | 'lock'} place @returns {Widget[]} the widgets of a place in order, as they look at the moment */
    widgets(place) {
      const placed = (state?.widgets ?? []).filter((widget) => widget.place === place);
      placed.sort((one, other) => one.position - other.position);
      if (view.moment === null) return placed;
      const at = new Date(view.moment).toISOString().replace('.000Z', 'Z');
      return placed.map((widget) => {
        const then = view.widgets.get(widget.id);
        return then ? { ...widget, ...then, url: then.url ?? null, at } : widget;
      });
    },
  };
}

/** @typedef {ReturnType<typeof createStore>} Store */
