import { byId } from './dom.js';
import { enableDragging } from './dragging.js';
import { orderAfter, placeNear } from './order.js';
import { t } from './words.js';
/** @typedef {import('./types.js').Widget} Widget */

/** @param {Element} article */
const idOf = (article) => Number(/** @type {HTMLElement} */ (article).dataset.id);

/**
 * Edit mode: removing widgets and putting them into another order. Changes show at once; the server's state decides.
 * @param {{store: import('./store.js').Store, api: typeof import('./api.js').api, refresh: () => Promise<unknown>,
 *   say: (text: string) => void, phone: import('./phone.js').Phone}} context
 */
export function createEditing({ store, api, refresh, say, phone }) {
  const button = byId('edit');
  let on = false;
  /** Orders that the server does not know of yet. @type {Map<string, number[]>} */
  const orders = new Map();
  /** @type {Set<number>} */
  const removed = new Set();
  let queue = Promise.resolve();
  let queued = 0;

  /** @param {number} id */
  const widgetOf = (id) => store.state?.widgets.find((widget) => widget.id === id);

  /** Sends a change after those before it, then lets the state decide. @param {() => Promise<unknown>} request */
  function send(request) {
    queued++;
    queue = queue.then(request).catch((error) => say(t(error.message))).then(async () => {
      if (--queued > 0) return;
      await refresh();
      if (queued > 0) return;
      orders.clear();
      removed.clear();
      store.notify();
    });
    return queue;
  }

  /** @param {boolean} next */
  function set(next) {
    on = next && store.moment === null;
    button.classList.toggle('main-button', on);
    button.textContent = t(on ? 'Done' : 'Edit');
    button.dataset.words = on ? 'Done' : 'Edit';
    document.documentElement.classList.toggle('editing', on);
    store.notify();
  }

  /** Tells the server where a widget stands now among the elements around it. @param {Element} article */
  function moved(article) {
    const id = idOf(article);
    const widget = widgetOf(id);
    const container = article.parentElement;
    if (!widget || !container) return;
    const shown = [...container.children].map(idOf);
    const before = editing.ordered(widget.place, store.widgets(widget.place)).map((one) => one.id);
    const order = orderAfter(before, shown);
    say(t('%1$@ moved to position %2$@ of %3$@', widget.displayName, shown.indexOf(id) + 1, shown.length));
    if (order.indexOf(id) === before.indexOf(id)) return;
    orders.set(widget.place, order);
    send(() => api.move(id, order.indexOf(id)));
  }

  const dragging = enableDragging({ isOn: () => on, shrink: phone.shrink, moved });
  button.addEventListener('click', () => set(!on));
  document.addEventListener('keydown', (event) => {
    if (event.key === 'Escape' && on && !dragging.cancel() && !document.querySelector('dialog[open]')) {
      set(false);
      button.focus();
    }
  });

  const editing = {
    get on() { return on; },
    set,
    /** @param {string} place */
    isDragging: (place) => dragging.place() === place,
    /** @param {string} place @param {Widget[]} widgets @returns {Widget[]} as they are shown while changes are on their way */
    ordered(place, widgets) {
      const order = orders.get(place) ?? [];
      /** @param {Widget} widget */
      const rank = (widget) => (order.includes(widget.id) ? order.indexOf(widget.id) : order.length + widget.position);
      const left = widgets.filter((widget) => !removed.has(widget.id));
      return order.length ? left.sort((one, other) => rank(one) - rank(other)) : left;
    },
    /** @param {number} id */
    async remove(id) {
      const widget = widgetOf(id);
      const article = document.querySelector(`[data-id="${id}"]`);
      const neighbour = article?.nextElementSibling ?? article?.previousElementSibling;
      removed.add(id);
      store.notify();
      /** @type {HTMLElement} */ (neighbour?.querySelector('.remove') ?? button).focus();
      say(t('%@ removed', widget?.displayName ?? ''));
      await send(() => api.remove(id));
    },
    /** The arrow keys on a widget's handle. @param {KeyboardEvent} event @param {number} id */
    handleKey(event, id) {
      const article = document.querySelector(`[data-id="${id}"]`);
      const step = { ArrowUp: -1, ArrowDown: 1, Home: -Infinity, End: Infinity,
        ArrowLeft: document.dir === 'rtl' ? 1 : -1, ArrowRight: document.dir === 'rtl' ? -1 : 1 }[event.key];
      if (!article?.parentElement || step === undefined) return;
      event.preventDefault();
      const siblings = [...article.parentElement.children];
      placeNear(article, siblings.indexOf(article) + step);
      article.scrollIntoView({ block: 'nearest' });
      moved(article);
    },
  };
  return editing;
}
