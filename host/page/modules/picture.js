import { element } from './dom.js';

/**
 * A widget's picture. A new one takes the old one's place when it has arrived whole, and never if it cannot be had.
 */
export function createPicture() {
  const holder = element('div', { class: 'picture' }, element('div', { class: 'placeholder' }));
  let wanted = '';

  return {
    element: holder,
    /**
     * @param {string | null} key tells pictures apart; null: there is none yet
     * @param {string} address
     */
    async show(key, address) {
      if (key === null || key === wanted) return;
      wanted = key;
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
        if (wanted === key) wanted = '';
      }
    },
  };
}
