import { element } from './dom.js';
import { shortText, timeOrDayText } from './moments.js';
import { createOverlay, setAddress } from './overlay.js';
import { createPicture } from './picture.js';
import { t } from './words.js';
/** @typedef {import('./types.js').Widget} Widget */
/**
 * What a widget on the page needs from the others.
 * @typedef {{store: import('./store.js').Store, clock: import('./clock.js').Clock, api: typeof import('./api.js').api,
 *   taps: ReturnType<typeof import('./taps.js').createTaps>, phone: import('./phone.js').Phone,
 *   editing: ReturnType<typeof import('./editing.js').createEditing>}} Context
 */

/**
 * A placed widget: its picture, the controls over it, its name below it, and what edit mode adds.
 * @param {number} id
 * @param {Context} context
 */
export function createWidget(id, context) {
  const { store, clock, api, phone, editing } = context;
  const name = element('h3', { class: 'name', id: `widget-${id}` });
  const picture = createPicture();
  const surface = element('a', { class: 'surface', target: '_blank', rel: 'noopener noreferrer' });
  const overlay = createOverlay();
  const age = element('p', { class: 'age', id: `age-${id}`, hidden: true });
  const remove = element('button', { type: 'button', class: 'remove', onclick: () => editing.remove(id) });
  const handle = element('button', {
    type: 'button', class: 'handle',
    onkeydown: (/** @type {KeyboardEvent} */ event) => editing.handleKey(event, id),
  });
  const tile = element('div', { class: 'tile' }, picture.element, surface, overlay.element, age);
  const article = element('article', { class: 'widget', 'aria-labelledby': name.id, 'data-id': id }, name, tile, remove, handle);

  /** @param {Widget} widget */
  function showAge(widget) {
    const { state } = store;
    age.hidden = !widget.failure || !state;
    if (!widget.failure || !state) return;
    const since = t('Since %1$@: %2$@', shortText(state, widget.failure.since), t(widget.failure.message));
    const from = widget.drawnAt ? t('from %@', timeOrDayText(state, widget.drawnAt, clock.now())) : t('not drawn yet');
    age.title = since;
    age.replaceChildren(from, element('span', { class: 'unseen' }, `. ${since}`));
  }

  return {
    element: article,
    /** @param {Widget} widget */
    update(widget) {
      const { state } = store;
      if (!state) return;
      article.dataset.family = widget.family;
      article.dataset.place = widget.place;
      if (name.textContent !== widget.displayName) name.textContent = widget.displayName;
      tile.style.width = `${widget.width}px`;
      tile.style.height = `${widget.height}px`;
      const density = phone.density();
      picture.show(widget.picture && `${widget.picture} ${density}`, widget.at
        ? api.pictureAt(id, density, widget.at)
        : api.pictureNow(id, density, widget.picture ?? ''));
      surface.setAttribute('aria-label', t('Open %@ in the planner', widget.displayName));
      setAddress(surface, widget.url ?? state.plannerURL, store.moment !== null);
      overlay.update(widget, context);
      showAge(widget);
      remove.setAttribute('aria-label', t('Remove %@', widget.displayName));
      handle.setAttribute('aria-label', t('Move %@', widget.displayName));
      handle.title = t('Drag, or use the arrow keys');
      remove.hidden = handle.hidden = !editing.on;
      tile.inert = editing.on;
    },
  };
}
