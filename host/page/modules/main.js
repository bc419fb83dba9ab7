import { api } from './api.js';
import { createClock } from './clock.js';
import { createConnection } from './connection.js';
import { byId } from './dom.js';
import { createEditing } from './editing.js';
import { createGallery } from './gallery.js';
import { createMessages } from './messages.js';
import { clockText, dayText, languageTag } from './moments.js';
import { createPhone } from './phone.js';
import { createPlaces } from './places.js';
import { createStore } from './store.js';
import { createTabs } from './tabs.js';
import { createTaps } from './taps.js';
import { createTime } from './time.js';
import { createWhy } from './why.js';
import { translatePage, useWords } from './words.js';

const store = createStore(api.state);

let translated = '';
store.subscribe(() => {
  const { state } = store;
  const key = JSON.stringify([state?.words, state?.locale]);
  if (!state || key === translated) return;
  translated = key;
  useWords(state.words, languageTag(state.locale));
  document.documentElement.lang = Object.keys(state.words).length ? languageTag(state.locale) : 'en';
  byId('screens').lang = languageTag(state.locale);
  translatePage();
});

const clock = createClock(store);
const { say } = createMessages(byId('said'));
const { refresh, follow } = createConnection(store, byId('connection'));
const tabs = createTabs();
const phone = createPhone(store, () => store.notify());
const taps = createTaps({ store, api, refresh, say });
const editing = createEditing({ store, api, refresh, say, phone });
const places = createPlaces({ store, clock, api, taps, phone, editing });
store.subscribe(places.render);
createTime({ store, clock, api, say, editing });
createGallery({ store, api, refresh, phone, tabs });
createWhy({ store, api });

function showClock() {
  const { state } = store;
  if (!state) return;
  const moment = store.moment ?? clock.now();
  byId('status-time').textContent = clockText(state, moment);
  byId('lock-time').textContent = clockText(state, moment);
  byId('lock-date').textContent = dayText(state, moment);
}
clock.subscribe(showClock);

follow();
