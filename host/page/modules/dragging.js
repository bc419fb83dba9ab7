import { placeNear } from './order.js';

/** How far a pointer moves, in CSS pixels, before it drags. */
const slack = 4;
/** Height of the zones at the ends of the screen in which a drag scrolls it, and the fastest step per frame. */
const [zone, fastest] = [70, 12];

const calm = matchMedia('(prefers-reduced-motion: reduce)');

/** Lets elements glide from where they were. @param {Element[]} elements @param {() => void} change @param {number} shrink */
function glide(elements, change, shrink) {
  const from = elements.map((one) => one.getBoundingClientRect());
  change();
  if (calm.matches) return;
  elements.forEach((one, i) => {
    const to = one.getBoundingClientRect();
    const [x, y] = [(from[i].left - to.left) / shrink, (from[i].top - to.top) / shrink];
    if (x || y) one.animate([{ transform: `translate(${x}px, ${y}px)` }, {}], { duration: 200, easing: 'ease-out' });
  });
}

/**
 * How far the screen may be scrolled; the dragged widget itself, drawn below the others, does not count.
 * @param {Element} page
 * @param {Element} article
 */
function lowest(page, article) {
  const grid = /** @type {HTMLElement} */ (article.parentElement);
  const foot = parseFloat(getComputedStyle(page).paddingBottom) || 0;
  return Math.max(grid.offsetTop + grid.offsetHeight + foot - page.clientHeight, 0);
}

/**
 * Dragging widgets with a pointer: by mouse anywhere on them, by touch at the handle (elsewhere a touch scrolls).
 * @param {{isOn: () => boolean, shrink: () => number, moved: (article: Element) => void}} options
 */
export function enableDragging({ isOn, shrink, moved }) {
  /** @type {null | {article: HTMLElement, pointer: number, grip: [number, number], start: [number, number],
   *   index: number, going: boolean, at: [number, number], frame: number, over: Element | null}} */
  let drag = null;

  function follow() {
    if (!drag) return;
    const { article, at: [x, y], grip } = drag;
    article.style.transform = '';
    const rect = article.getBoundingClientRect();
    article.style.transform = `translate(${(x - grip[0] - rect.left) / shrink()}px, ${(y - grip[1] - rect.top) / shrink()}px)`;
  }

  /** Takes the place of the widget under the pointer, once: two that fit both ways would swap for ever. */
  function reorder() {
    if (!drag) return;
    const { article, at: [x, y] } = drag;
    const siblings = [...(article.parentElement?.children ?? [])];
    const others = siblings.filter((one) => one !== article);
    const rects = others.map((one) => one.getBoundingClientRect());
    const hit = rects.findIndex((rect) => x > rect.left && x < rect.right && y > rect.top && y < rect.bottom);
    const below = rects.every((rect) => y > rect.bottom);
    const over = others[hit] ?? (below ? article.parentElement : null);
    if (over === drag.over || others.some((one) => one.getAnimations().length)) return;
    drag.over = over;
    if (over) glide(others, () => placeNear(article, hit < 0 ? others.length : siblings.indexOf(over)), shrink());
  }

  function scroll() {
    if (!drag?.going) return;
    const page = drag.article.closest('.page');
    const rect = page?.getBoundingClientRect();
    if (page && rect) {
      const y = drag.at[1];
      const push = y < rect.top + zone ? y - rect.top - zone : y > rect.bottom - zone ? y - rect.bottom + zone : 0;
      page.scrollTop = Math.min(page.scrollTop + Math.max(-1, Math.min(1, push / zone)) * fastest, lowest(page, drag.article));
      reorder();
      follow();
    }
    drag.frame = requestAnimationFrame(scroll);
  }

  /** @param {boolean} keep */
  function end(keep) {
    if (!drag) return false;
    const { article, index, going, frame } = drag;
    drag = null;
    cancelAnimationFrame(frame);
    article.classList.remove('dragged');
    if (!going) return false;
    glide([article], () => { article.style.transform = ''; }, shrink());
    if (!keep) placeNear(article, index);
    moved(article);
    return true;
  }

  document.addEventListener('pointerdown', (event) => {
    const target = /** @type {Element} */ (event.target);
    const article = /** @type {HTMLElement | null} */ (target.closest('.widget'));
    const handle = target.closest('.handle');
    if (!isOn() || drag || !article || event.button !== 0 || target.closest('.remove')) return;
    if (event.pointerType === 'touch' && !handle) return;
    if (!handle) event.preventDefault();
    const rect = article.getBoundingClientRect();
    const at = /** @type {[number, number]} */ ([event.clientX, event.clientY]);
    drag = { article, pointer: event.pointerId, grip: [at[0] - rect.left, at[1] - rect.top], start: at, at, frame: 0,
      index: [...(article.parentElement?.children ?? [])].indexOf(article), going: false, over: null };
  });
  document.addEventListener('pointermove', (event) => {
    if (!drag || event.pointerId !== drag.pointer) return;
    drag.at = [event.clientX, event.clientY];
    if (!drag.going) {
      if (Math.hypot(drag.at[0] - drag.start[0], drag.at[1] - drag.start[1]) < slack) return;
      drag.going = true;
      drag.article.classList.add('dragged');
      drag.frame = requestAnimationFrame(scroll);
    }
    follow();
  });
  document.addEventListener('pointerup', (event) => { if (event.pointerId === drag?.pointer) end(true); });
  document.addEventListener('pointercancel', (event) => { if (event.pointerId === drag?.pointer) end(false); });

  return {
    /** @returns {boolean} whether there was a drag to give up */
    cancel: () => end(false),
    /** @returns {string | null} the place in which a widget is being dragged */
    place: () => (drag?.going ? drag.article.dataset.place ?? null : null),
  };
}
