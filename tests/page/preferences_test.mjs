import assert from 'node:assert/strict';
import { test } from 'node:test';
import { assertAccessible, onHome, useBrowser } from './support/browser.mjs';

// What people set in their browser: large letters, little motion, more contrast.

const used = useBrowser();
const withLargeLetters = useBrowser(['--blink-settings=defaultFontSize=32']);
const many = [['tasks', 'systemSmall'], ['calendar', 'systemSmall'], ['mood', 'systemMedium'], ['tasks', 'accessoryRectangular']];

/** Visible controls and texts of the page whose content is cut off, or that lie over each other. */
const faults = (page) => page.evaluate(() => {
  const root = document.querySelector('dialog[open]') ?? document.querySelector('.room');
  const seen = [...root.querySelectorAll('h1, h2, h3, h4, p, dt, dd, button, input, summary')].filter((one) =>
    one.getBoundingClientRect().width > 1 && !one.closest('.phone, .unseen'));
  const name = (one) => one.id || one.textContent.trim();
  const cut = seen.filter((one) => one.scrollWidth > one.clientWidth + 1 ||
    (one.matches('button, input') && one.scrollHeight > one.clientHeight + 1)).map(name);
  const letters = seen.filter((one) => one.matches('h1, h2, button') && one.offsetHeight > 4.5 * parseFloat(getComputedStyle(one).fontSize)).map(name);
  const boxes = seen.filter((one) => one.matches('button, input')).map((one) => [name(one), one.getBoundingClientRect()]);
  const over = boxes.flatMap(([a, one], i) => boxes.slice(i + 1).filter(([, other]) => one.left < other.right - 1 &&
    other.left < one.right - 1 && one.top < other.bottom - 1 && other.top < one.bottom - 1).map(([b]) => `${a} on ${b}`));
  const beyond = document.documentElement.scrollWidth <= innerWidth ? [] : ['the page scrolls sideways',
    ...[...document.querySelectorAll('.room *')].filter((one) => one.getBoundingClientRect().right > innerWidth + 1).map(name)];
  return { cut, letters, over, beyond };
});
const none = { cut: [], letters: [], over: [], beyond: [] };

for (const width of [320, 390, 1280]) {
  test(`Letters of twice the size have room at ${width} pixels`, () => onHome(withLargeLetters, { window: { viewport: { width, height: 740 } } },
    async (page) => {
      assert.equal(await page.evaluate(() => getComputedStyle(document.querySelector('#add')).fontSize), '30px');
      await page.getByText('Why it looks this way').click();
      await page.locator('#why-content h4').first().waitFor();
      assert.deepEqual(await faults(page), none);
      await page.getByRole('button', { name: 'Edit', exact: true }).click();
      await page.getByRole('button', { name: 'Next change' }).click();
      await page.waitForFunction(() => document.querySelector('#away').textContent);
      assert.deepEqual(await faults(page), none);
      await page.getByRole('button', { name: 'Add widget' }).click();
      await page.locator('.offer').first().waitFor();
      assert.deepEqual(await faults(page), none);
    }));
}

test('On the narrowest phone what can be tapped is still 24 pixels high and wide, and apart', () => onHome(used,
  { mock: { widgets: many }, window: { viewport: { width: 320, height: 640 } } }, async (page) => {
    for (const place of ['Home', 'Lock screen']) {
      await page.getByRole('tab', { name: place }).click();
      for (const mode of ['Edit', 'Done']) {
        const found = await page.evaluate(() => {
          const boxes = [...document.querySelectorAll('.page:not([hidden]) :is(input, .control, .remove, .handle)')].filter((one) => !one.closest('[inert]'))
            .map((one) => [one.getAttribute('aria-label'), one.getBoundingClientRect()]).filter(([, box]) => box.width);
          const small = boxes.filter(([, { width, height }]) => Math.min(width, height) < 23.9).map(([name]) => name);
          const over = boxes.flatMap(([a, one], i) => boxes.slice(i + 1).filter(([b, other]) => a !== b &&
            one.left < other.right - 0.1 && other.left < one.right - 0.1 && one.top < other.bottom - 0.1 && other.top < one.bottom - 0.1)
            .map(([b]) => `${a} on ${b}`));
          return { count: boxes.length > 0, small, over: over.filter((each) => !/Remove|Move/.test(each)) };
        });
        assert.deepEqual(found, { count: true, small: [], over: [] }, `${place}, ${mode}`);
        await page.getByRole('button', { name: mode, exact: true }).click();
      }
    }
  }));

test('Nothing moves where motion is to be reduced', () => onHome(used, { window: { reducedMotion: 'reduce' } }, async (page, mock) => {
  mock.home.tapGate = new Promise(() => {});
  await page.getByRole('checkbox').first().press('Space');
  await page.locator('.tick.waiting').waitFor();
  await page.getByRole('button', { name: 'Add widget' }).click();
  const moving = await page.evaluate(() => [...document.querySelectorAll('*')].flatMap((one) =>
    ['', '::before', '::after', '::backdrop'].map((part) => getComputedStyle(one, part)).filter((style) =>
      style.transitionDuration !== '0s' || style.animationName !== 'none').map(() => one.className || one.id)));
  assert.deepEqual(moving, []);
  assert.equal(await page.evaluate(() => document.getAnimations().length), 0);
}));

for (const colorScheme of ['light', 'dark']) {
  test(`With more contrast buttons have edges, texts their full strength: ${colorScheme}`, () => onHome(used,
    { mock: { theme: colorScheme }, window: { colorScheme, contrast: 'more' } }, async (page) => {
      const ink = await page.evaluate(() => getComputedStyle(document.body).color);
      const weak = await page.evaluate((strong) => [...document.querySelectorAll('.head button, .card button')].flatMap((one) => {
        const style = getComputedStyle(one);
        const faint = [style.borderTopColor !== strong && 'edge', style.opacity !== '1' && 'opacity', style.borderTopWidth === '0px' && 'no edge'];
        return faint.filter(Boolean).map((what) => `${one.id}: ${what}`);
      }), ink);
      assert.deepEqual(weak, []);
      assert.equal(await page.evaluate(() => getComputedStyle(document.querySelector('#chosen')).color), ink);
      await page.getByText('Why it looks this way').click();
      await page.locator('#why-content h4').first().waitFor();
      await assertAccessible(page, colorScheme);
      await page.getByRole('tab', { name: 'Home' }).focus();
      await page.keyboard.press('ArrowRight');
      assert.equal(await page.evaluate(() => getComputedStyle(document.activeElement).outlineWidth), '4px');
    }));
}
