/** @typedef {import('./types.js').State} State */

/** @type {Map<string, Intl.DateTimeFormat>} */
const formats = new Map();

/** @param {string} locale such as "de_DE.UTF-8" @returns {string} such as "de-DE" */
export function languageTag(locale) {
  const tag = locale.replace(/[.@].*$/, '').replaceAll('_', '-');
  try {
    return Intl.getCanonicalLocales(tag)[0] ?? 'en';
  } catch {
    return 'en';
  }
}

/** @param {State} state @param {Intl.DateTimeFormatOptions} options */
function format(state, options) {
  const key = JSON.stringify([state.locale, state.timeZone, options]);
  let made = formats.get(key);
  if (!made) {
    try {
      made = new Intl.DateTimeFormat(languageTag(state.locale), { ...options, timeZone: state.timeZone });
    } catch {
      made = new Intl.DateTimeFormat(languageTag(state.locale), options);
    }
    formats.set(key, made);
  }
  return made;
}

/** @typedef {(state: State, moment: number | string) => string} Shown a moment in the host's zone and language */

/** @param {Intl.DateTimeFormatOptions} options @returns {Shown} */
const shown = (options) => (state, moment) => format(state, options).format(new Date(moment));

export const timeText = shown({ hour: 'numeric', minute: '2-digit' });
export const dayText = shown({ weekday: 'long', day: 'numeric', month: 'long' });
export const fullText = shown({ weekday: 'long', day: 'numeric', month: 'long', hour: 'numeric', minute: '2-digit' });
export const shortText = shown({ weekday: 'short', day: 'numeric', month: 'short', hour: 'numeric', minute: '2-digit' });
const dayKey = shown({ year: 'numeric', month: 'numeric', day: 'numeric' });

/** The time without "AM", as a phone shows it. @type {Shown} */
export const clockText = (state, moment) =>
  format(state, { hour: 'numeric', minute: '2-digit' }).formatToParts(new Date(moment))
    .filter((part) => part.type !== 'dayPeriod').map((part) => part.value).join('').trim();

/** The time, with the day unless that is the day of `now`. @param {State} state @param {string | number} moment @param {number} now */
export const timeOrDayText = (state, moment, now) =>
  dayKey(state, moment) === dayKey(state, now) ? timeText(state, moment) : shortText(state, moment);
