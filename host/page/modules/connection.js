import { ApiError } from './api.js';
import { t } from './words.js';

/** How long to wait before asking again what failed, in milliseconds. */
const pause = 3000;

/**
 * Follows the server's events and keeps the state fresh. While the server is away a banner says so.
 * @param {import('./store.js').Store} store
 * @param {HTMLElement} banner
 */
export function createConnection(store, banner) {
  /** @type {EventSource | null} */
  let events = null;
  let lost = false;
  let timer = 0;
  let retry = 0;

  /** @param {string} text */
  const show = (text) => { if (banner.textContent !== text) banner.textContent = text; };

  /** @param {unknown} error */
  function report(error) {
    lost = true;
    const denied = error instanceof ApiError && error.status === 403;
    show(denied
      ? t('This page has no access. Run “mirune serve” again, or open the address that it printed.')
      : t('Reconnecting…'));
  }

  /** Fetches the state; a failure shows in the banner. @returns {Promise<boolean>} whether it came */
  async function refresh() {
    clearTimeout(retry);
    try {
      await store.refresh();
      lost = false;
      show('');
      return true;
    } catch (error) {
      report(error);
      retry = setTimeout(refresh, pause);
      return false;
    }
  }

  function follow() {
    clearTimeout(timer);
    events?.close();
    events = new EventSource('/api/events');
    events.addEventListener('open', () => { if (lost) refresh(); });
    events.addEventListener('state', (event) => {
      const { version } = JSON.parse(/** @type {MessageEvent} */ (event).data);
      if (lost || version !== store.state?.version) refresh();
    });
    events.addEventListener('error', async () => {
      lost = true;
      const reachable = await refresh();
      if (events?.readyState === EventSource.CLOSED) {
        clearTimeout(timer);
        timer = setTimeout(follow, pause);
      }
      if (reachable && events?.readyState !== EventSource.OPEN) report(null);
    });
  }

  document.addEventListener('visibilitychange', () => { if (!document.hidden) refresh(); });
  return { refresh, follow };
}
