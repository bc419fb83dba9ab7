/**
 * Says something at the foot of the page, to eyes and to screen readers (politely).
 * @param {HTMLElement} toast
 */
export function createMessages(toast) {
  let timer = 0;
  return {
    /** @param {string} text */
    say(text) {
      clearTimeout(timer);
      toast.textContent = text;
      toast.classList.add('shown');
      timer = setTimeout(() => toast.classList.remove('shown'), 6000);
    },
  };
}
