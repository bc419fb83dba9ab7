import { byId, element } from './dom.js';
import { shortText } from './moments.js';
import { sizeName, t } from './words.js';

/** What became of a file, as people say it. */
const fileStates = { missing: 'Missing', unreadable: 'Cannot be read', refused: 'Refused', decoded: 'Read' };

/** @param {...[string, string | null]} rows */
const facts = (...rows) => element('dl', {}, ...rows.filter(([, value]) => value)
  .map(([name, value]) => element('div', {}, element('dt', {}, name), element('dd', {}, value))));

/**
 * The drawer that says why each widget shows what it shows, and how the planner's files are.
 * @param {{store: import('./store.js').Store, api: typeof import('./api.js').api}} context
 */
export function createWhy({ store, api }) {
  const details = /** @type {HTMLDetailsElement} */ (byId('why'));
  const content = byId('why-content');
  let asked = 0;

  /** @param {string | null | undefined} moment */
  const when = (moment) => (moment && store.state ? shortText(store.state, moment) : t('none'));

  /** @param {any} one */
  function widgetCard(one) {
    const widget = store.state?.widgets.find(({ id }) => id === one.id);
    if (!widget) return null;
    const { nextRequest: next, lastFailure: failure } = one;
    return element('li', {},
      element('h4', {}, `${widget.displayName} `, element('span', { class: 'size' }, sizeName(widget.family))),
      facts(
        [t('Shows entry of'), when(one.entryDate)],
        [t('Next change'), when(one.nextChange)],
        [t('Asks again'), next ? t('%1$@, because: %2$@', when(next.at), t(next.reason)) : t('none')],
        [t('Asked last'), when(one.lastRequest)]),
      failure ? element('p', { class: 'trouble' }, t('Failed %1$@: %2$@', when(failure.at), t(failure.message))) : null);
  }

  /** @param {any} file */
  function fileCard(file) {
    return element('li', { 'data-state': file.state },
      element('h4', {}, element('span', { dir: 'ltr' }, file.file), ' ', element('span', { class: 'state' }, t(fileStates[file.state] ?? file.state))),
      facts([t('Changed'), file.modified && when(file.modified)],
        [t('Size'), file.size ? t('%@ bytes', file.size) : null]),
      file.problems.length ? element('ul', { class: 'problems' },
        ...file.problems.map((/** @type {string} */ problem) => element('li', { dir: 'auto' }, t(problem)))) : null,
      file.consequence ? element('p', { class: 'consequence', dir: 'auto' }, t(file.consequence)) : null);
  }

  async function load() {
    if (!details.open) return;
    const mine = ++asked;
    try {
      const why = await api.why();
      if (mine !== asked) return;
      content.replaceChildren(
        element('h3', {}, t('Widgets')),
        why.widgets.length ? element('ul', { class: 'cards' }, ...why.widgets.map(widgetCard)) : element('p', {}, t('none')),
        element('h3', {}, t('The planner’s files')),
        element('ul', { class: 'cards' }, ...why.files.map(fileCard)),
        element('p', { class: 'running' }, why.extension.running
          ? t('The extension is running.') : t('The extension is at rest until it is needed.')));
    } catch (error) {
      if (mine === asked) content.replaceChildren(element('p', {}, t(/** @type {Error} */ (error).message)));
    }
  }

  let version = -1;
  store.subscribe(() => {
    if (store.state?.version === version) return;
    version = store.state?.version ?? -1;
    load();
  });
  details.addEventListener('toggle', load);
}
