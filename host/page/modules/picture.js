import { element } from './dom.js';

/** How long to wait before asking again for a picture that could not be had, in milliseconds. */
const pause = 5000;

/**
 * A widget's picture. A new one takes the old one's place when it has arrived whole, and never if it cannot be had.
 */
export function createPicture() {
  const holder = element('div', { class: 'picture' }, element('div', { class: 'placeholder' }));
  let wanted = '';
  let timer = 0;

  const picture = {
    element: holder,
    /**
     * @param {string | null} key tells pictures apart; null: there is none yet
     * @param {string} address
     */
    async show(key, address) {
      if (key === null || key === wanted) return;
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
