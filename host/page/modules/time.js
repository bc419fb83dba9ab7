import { byId, element } from './dom.js';
import { dayText, fullText, timeText } from './moments.js';
import { t } from './words.js';

const minute = 60_000;
/** How far the slider reaches beyond the last change, and where nothing is going to change. */
const [beyond, emptyReach] = [30 * minute, 24 * 60 * minute];
/** How long a slider rests before its moment is asked for, in milliseconds. */
const rest = 120;

/**
 * The time slider: how everything placed will look at a moment between now and a little after the last known change.
 * @param {{store: import('./store.js').Store, clock: import('./clock.js').Clock, api: typeof import('./api.js').api,
 *   say: (text: string) => void, editing: {set: (on: boolean) => void}}} context
 */
export function createTime({ store, clock, api, say, editing }) {
  const [slider, ticks, away] = [byId('slider'), byId('ticks'), byId('away')];
  /** The moment chosen, in milliseconds; null: now. @type {number | null} */
  let moment = null;
  let timer = 0;
  let asking = new AbortController();

  const changes = () => (store.state?.changes ?? []).map(Date.parse).filter((change) => change > clock.now());

  let drawn = '';

  function drawTicks() {
    const [first, last] = [Number(slider.min), Number(slider.max)];
    const key = `${first} ${last} ${store.state?.version}`;
    if (key === drawn) return;
    drawn = key;
    const shares = new Set(changes().map((change) => Math.round((change / minute - first) / (last - first) * 400) / 4));
    ticks.replaceChildren(...[...shares].map((share) => {
      const tick = element('span');
      tick.style.insetInlineStart = `${share}%`;
      return tick;
    }));
  }

  function render() {
    const { state } = store;
    if (!state) return;
    if (moment !== null && moment <= clock.now()) return choose(null);
    const known = changes();
    const now = clock.now();
    slider.min = String(Math.floor(now / minute));
    slider.max = String(Math.ceil(((known.at(-1) ?? now + emptyReach - beyond) + beyond) / minute));
    slider.value = String(Math.floor((moment ?? now) / minute));
    const text = fullText(state, moment ?? now);
    byId('chosen-day').textContent = dayText(state, moment ?? now);
    byId('chosen-time').textContent = timeText(state, moment ?? now);
    byId('chosen').classList.toggle('away', moment !== null);
    slider.setAttribute('aria-valuetext', moment === null ? t('Now: %@', text) : text);
    byId('next').disabled = !known.some((change) => change > (moment ?? now));
    byId('previous').disabled = moment === null;
    byId('now').disabled = moment === null;
    if (moment === null) away.textContent = '';
    drawTicks();
  }

  /** Asks for the moment on which the slider rests, and says which one it is. */
  async function ask() {
    const { state } = store;
    if (moment === null || !state) return;
    const asked = moment;
    const note = t('This is how it will look on %@. Check boxes and links are off.', fullText(state, asked));
    if (away.textContent !== note) away.textContent = note;
    asking = new AbortController();
    const { signal } = asking;
    try {
      const answer = await api.at(new Date(asked).toISOString().replace('.000Z', 'Z'), signal);
      if (moment === asked) store.look(asked, answer.widgets);
    } catch (error) {
      if (!signal.aborted) say(t('That moment cannot be shown: %@', t(/** @type {Error} */ (error).message)));
    }
  }

  /** @param {number | null} next */
  function choose(next) {
    clearTimeout(timer);
    asking.abort();
    const wasNow = moment === null;
    moment = next !== null && next > clock.now() ? next : null;
    if (moment === null) {
      if (!wasNow || store.moment !== null) store.look(null);
    } else {
      if (wasNow) {
        editing.set(false);
        store.look(moment);
      }
      timer = setTimeout(ask, rest);
    }
    render();
  }

  let version = -1;
  store.subscribe(() => {
    if (store.state?.version === version) return;
    version = store.state?.version ?? -1;
    render();
    if (moment !== null) ask();
  });
  clock.subscribe(render);
  slider.addEventListener('input', () => choose(Number(slider.value) * minute));
  byId('now').addEventListener('click', () => {
    choose(null);
    slider.focus();
  });
  byId('next').addEventListener('click', () =>
    choose(changes().find((change) => change > (moment ?? clock.now())) ?? moment));
  byId('previous').addEventListener('click', () => {
    choose(changes().filter((change) => change < (moment ?? 0)).at(-1) ?? null);
    if (moment === null) slider.focus();
  });
}
