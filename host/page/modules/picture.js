import { element } from './dom.js';

/** How long to wait before asking again for a picture that could not be had, in milliseconds. */
const pause = 5000;

/** Tells holders when they come on the screen, or near it, and when they leave. */
const screen = new IntersectionObserver(
  (changes) => {
    for (const { target, isIntersecting } of changes) followers.get(target)?.(isIntersecting);
  },
  { rootMargin: '200px' },
);
/** @type {WeakMap<Element, (isOnScreen: boolean) => void>} */
const followers = new WeakMap();

/**
 * A widget's picture. A new one takes the old one's place when it has arrived whole, and never if it cannot be had. What
 * is not on the screen is not asked for.
 */
export function createPicture() {
  const holder = element('div', { class: 'picture' }, element('div', { class: 'placeholder' }));
  let wanted = '';
  let timer = 0;
  let isOnScreen = false;
  /** What is to be shown as soon as it can be seen. */
  let waiting = null;

  followers.set(holder, (isIntersecting) => {
    isOnScreen = isIntersecting;
    if (!isOnScreen || waiting === null) return;
    const { key, address } = waiting;
    picture.show(key, address);
  });
  screen.observe(holder);

  const picture = {
    element: holder,
    /**
     * @param {string | null} key tells pictures apart; null: there is none yet
     * @param {string} address
     */
    async show(key, address) {
      if (key === null) return;
      waiting = isOnScreen ? null : { key, address };
      if (!isOnScreen || key === wanted) return;
      wanted = key;
      clearTimeout(timer);
      const next = new Image();
      next.alt = '';
      next.draggable = false;
      next.src = address;
      try {
        await next.decode();
        if (wanted !== key) return;
        next.dataset.picture = key;
        holder.replaceChildren(next);
      } catch {
        if (wanted !== key) return;
        wanted = '';
        timer = setTimeout(() => picture.show(key, address), pause);
      }
    },
  };
  return picture;
}
