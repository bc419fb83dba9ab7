import { t } from './words.js';
/** @typedef {import('./types.js').Part} Part */
/** @typedef {import('./types.js').Widget} Widget */

/** @param {Widget} widget @param {Part} part */
const keyOf = (widget, part) => `${widget.id} ${part.id} ${part.date ?? ''}`;

/**
 * Taps on check boxes. A box fills at once; the state that follows decides, and a failure puts it back.
 * @param {{store: import('./store.js').Store, api: typeof import('./api.js').api, refresh: () => Promise<unknown>,
 *   say: (text: string) => void}} context
 */
export function createTaps({ store, api, refresh, say }) {
  /** @type {Set<string>} */
  const waiting = new Set();

  return {
    /** @param {Widget} widget @param {Part} part */
    isWaiting: (widget, part) => waiting.has(keyOf(widget, part)),
    /** @param {Widget} widget @param {Part} part */
    async tap(widget, part) {
      const key = keyOf(widget, part);
      if (waiting.has(key)) return store.notify();
      waiting.add(key);
      store.notify();
      try {
        await api.tap(widget.id, { id: part.id ?? '', date: part.date ?? null });
        await refresh();
        say(t('Done: %@', part.label));
      } catch (error) {
        say(t('“%1$@” could not be marked: %2$@', part.label, t(/** @type {Error} */ (error).message)));
      } finally {
        waiting.delete(key);
        store.notify();
      }
    },
  };
}
