/** @type {Record<string, string>} */
let words = {};
let numbers = new Intl.NumberFormat('en');

/**
 * @param {Record<string, string> | undefined} next localized texts by English key
 * @param {string} language tag of the language in which numbers are written
 */
export function useWords(next, language) {
  words = next ?? {};
  numbers = new Intl.NumberFormat(language);
}

/**
 * The localized text of an English key; the key itself where there is none. "%@" stands for the arguments in order,
 * "%2$@" for the second one. A text without arguments stays as it is: what the server says may quote anything.
 * @param {string} key
 * @param {...(string | number)} values
 */
export function t(key, ...values) {
  let next = 0;
  const text = Object.hasOwn(words, key) ? words[key] : key;
  return values.length === 0 ? text : text.replace(/%(?:(\d+)\$)?@/g, (_, number) => {
    const value = values[number ? Number(number) - 1 : next++] ?? '';
    return typeof value === 'number' ? numbers.format(value) : value;
  });
}

/** Translates what index.html says itself: data-words, data-words-label and data-words-placeholder hold the keys. */
export function translatePage(root = document) {
  for (const one of root.querySelectorAll('[data-words]')) one.textContent = t(one.getAttribute('data-words') ?? '');
  for (const name of ['label', 'placeholder']) {
    for (const one of root.querySelectorAll(`[data-words-${name}]`)) {
      one.setAttribute(name === 'label' ? 'aria-label' : name, t(one.getAttribute(`data-words-${name}`) ?? ''));
    }
  }
}

const sizes = {
  systemSmall: 'Small', systemMedium: 'Medium', systemLarge: 'Large', systemExtraLarge: 'Extra large',
  accessoryCircular: 'Circular', accessoryRectangular: 'Rectangular', accessoryInline: 'Inline',
};

/** @param {string} family @returns {string} what people call it */
export const sizeName = (family) => t(sizes[family] ?? family);
