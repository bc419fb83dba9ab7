import { byId, element } from './dom.js';
import { sizeName, t } from './words.js';
/** @typedef {import('./types.js').Kind} Kind */
/** @typedef {import('./types.js').Size} Size */

/** @param {string} family */
const placeOf = (family) => (family.startsWith('accessory') ? 'lock' : 'home');

/** @param {string} text */
const plain = (text) => text.normalize('NFKD').replace(/\p{M}/gu, '').toLocaleLowerCase();

/**
 * The dialog that shows every kind in every size that it offers, and places them.
 * @param {{store: import('./store.js').Store, api: typeof import('./api.js').api, refresh: () => Promise<unknown>,
 *   phone: import('./phone.js').Phone, tabs: ReturnType<typeof import('./tabs.js').createTabs>}} context
 */
export function createGallery({ store, api, refresh, phone, tabs }) {
  const dialog = /** @type {HTMLDialogElement} */ (byId('gallery'));
  const [filter, said, list] = [byId('gallery-filter'), byId('gallery-said'), byId('gallery-kinds')];

  /** @param {Kind} kind @param {Size} size */
  async function add(kind, size) {
    const place = placeOf(size.family);
    said.textContent = '';
    try {
      await api.add({ kind: kind.kind, family: size.family, place });
      tabs.show(place);
      await refresh();
      said.textContent = place === 'lock' ? t('%@ is on the lock screen.', kind.displayName)
        : t('%@ is on the home screen.', kind.displayName);
    } catch (error) {
      const { status, message } = /** @type {import('./api.js').ApiError} */ (error);
      said.textContent = status === 409
        ? t('The lock screen is full: %@ Remove a widget from it first.', t(message))
        : t('%1$@ could not be added: %2$@', kind.displayName, t(message));
    }
    said.classList.toggle('shown', said.textContent !== '');
  }

  /** @param {Kind} kind @param {Size} size */
  function offer(kind, size) {
    const image = element('img', { alt: '', loading: 'lazy', width: size.width, height: size.height,
      src: api.preview(kind.kind, size.family, phone.density()) });
    const name = sizeName(size.family);
    return element('li', { class: 'offer', 'data-family': size.family },
      element('div', { class: 'preview', 'data-place': placeOf(size.family) }, image),
      element('span', { class: 'offer-name' }, name),
      element('button', { type: 'button', class: 'main-button', onclick: () => add(kind, size),
        'aria-label': t('Add %1$@, %2$@', kind.displayName, name) }, t('Add')));
  }

  let shown = '';

  /** Shows the catalogue unless it is shown already. */
  function render() {
    const key = JSON.stringify([store.state?.catalogue, store.state?.theme, store.state?.words, phone.density()]);
    if (key === shown) return;
    shown = key;
    list.replaceChildren(...(store.state?.catalogue ?? []).map((kind) => {
      const section = element('section', { 'aria-labelledby': `kind-${kind.shortName}` },
        element('h3', { id: `kind-${kind.shortName}` }, kind.displayName),
        element('p', {}, kind.description),
        element('ul', { class: 'offers' }, ...kind.families.map((size) => offer(kind, size))));
      section.dataset.text = plain([kind.displayName, kind.description, ...kind.families.map((size) =>
        sizeName(size.family))].join(' '));
      return section;
    }), element('p', { class: 'nothing', hidden: true }, t('No widget matches.')));
    list.dataset.theme = store.state?.theme;
    sift();
  }

  function sift() {
    const wanted = plain(filter.value).split(/\s+/).filter(Boolean);
    let count = 0;
    for (const section of list.querySelectorAll('section')) {
      section.hidden = !wanted.every((word) => section.dataset.text?.includes(word));
      if (!section.hidden) count++;
    }
    list.querySelector('.nothing').hidden = count > 0 || wanted.length === 0;
  }

  function open() {
    filter.value = '';
    said.textContent = '';
    said.classList.remove('shown');
    shown = '';
    render();
    dialog.showModal();
    filter.focus();
  }

  store.subscribe(() => { if (dialog.open) render(); });
  byId('add').addEventListener('click', open);
  byId('gallery-close').addEventListener('click', () => dialog.close());
  filter.addEventListener('input', sift);
  dialog.addEventListener('click', (event) => { if (event.target === dialog) dialog.close(); });
  dialog.addEventListener('close', () => byId('add').focus());
}
