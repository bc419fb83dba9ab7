import { arrange, byId } from './dom.js';
import { createWidget } from './widget.js';
/** @typedef {import('./types.js').Widget} Widget */

/** Where each widget of a place goes. */
const containers = [
  { place: 'home', id: 'home-widgets', holds: () => true },
  { place: 'lock', id: 'lock-inline', holds: (/** @type {Widget} */ widget) => widget.family === 'accessoryInline' },
  { place: 'lock', id: 'lock-widgets', holds: (/** @type {Widget} */ widget) => widget.family !== 'accessoryInline' },
];

/**
 * Keeps the home screen's grid and the lock screen's slots as the state has them.
 * @param {import('./widget.js').Context} context
 */
export function createPlaces(context) {
  const { store, editing } = context;
  /** @type {Map<number, ReturnType<typeof createWidget>>} */
  const made = new Map();

  return {
    render() {
      if (!store.state) return;
      const present = new Set();
      for (const place of /** @type {const} */ (['home', 'lock'])) {
        const widgets = editing.ordered(place, store.widgets(place));
        byId(`${place}-empty`).hidden = widgets.length > 0;
        for (const widget of widgets) {
          present.add(widget.id);
          if (!made.has(widget.id)) made.set(widget.id, createWidget(widget.id, context));
          made.get(widget.id)?.update(widget);
        }
        if (editing.isDragging(place)) continue;
        for (const { id, holds } of containers.filter((one) => one.place === place)) {
          arrange(byId(id), widgets.filter(holds).map((widget) => /** @type {any} */ (made.get(widget.id)).element));
        }
      }
      for (const id of made.keys()) if (!present.has(id)) made.delete(id);
    },
  };
}
