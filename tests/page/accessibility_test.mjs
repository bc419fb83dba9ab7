import assert from 'node:assert/strict';
import { test } from 'node:test';
import { assertAccessible, eventually, names, onHome, useBrowser } from './support/browser.mjs';

const used = useBrowser();
const lively = [['tasks', 'systemSmall'], ['calendar', 'systemSmall'], ['mood', 'systemMedium'], ['moods', 'systemLarge'],
  ['events', 'accessoryInline'], ['tasks', 'accessoryCircular'], ['tasks', 'accessoryRectangular']];

/** What has the focus: its accessible name, else its id. */
const focused = (page) => page.evaluate(() => {
  const one = document.activeElement;
  return one.getAttribute('aria-label') || one.textContent.trim().slice(0, 40) || one.id;
});

for (const theme of ['light', 'dark']) {
  for (const options of [{ colorScheme: theme }, { colorScheme: theme, forcedColors: 'active' }]) {
    const name = `${theme}${options.forcedColors ? ', forced colours' : ''}`;
    test(`axe finds nothing wrong: ${name}`, () => onHome(used, { mock: { widgets: lively, theme }, window: { ...options, reducedMotion: 'reduce' } },
      async (page, mock) => {
        mock.home.files = [{ file: 'events.json', state: 'refused', modified: '2026-11-21T07:40:00Z', size: 812,
          problems: ['2026/11/21[3].calid: missing'], consequence: 'No events are shown.' }];
        mock.home.failures.set(1, { message: 'The extension stopped.', since: '2026-11-21T08:32:00Z' });
        mock.home.changed();
        await page.locator('.age').first().waitFor();
        await assertAccessible(page, 'home');
        await page.getByText('Why it looks this way').click();
        await page.locator('#why-content h4').first().waitFor();
        await assertAccessible(page, 'why');
        await page.getByRole('button', { name: 'Edit', exact: true }).click();
        await assertAccessible(page, 'edit');
        await page.getByRole('tab', { name: 'Lock screen' }).click();
        await assertAccessible(page, 'lock, edit');
        await page.getByRole('button', { name: 'Done' }).click();
        await assertAccessible(page, 'lock');
        await page.getByRole('button', { name: 'Next change' }).click();
        await page.waitForFunction(() => document.querySelector('#away').textContent);
        await assertAccessible(page, 'later');
        await page.getByRole('button', { name: 'Add widget' }).click();
        await page.locator('.offer').first().waitFor();
        await assertAccessible(page, 'gallery');
      }));
  }
}

test('An empty home screen and an empty lock screen pass axe', () => onHome(used, { mock: { widgets: [] } }, async (page) => {
  await assertAccessible(page, 'home');
  await page.getByRole('tab', { name: 'Lock screen' }).click();
  await assertAccessible(page, 'lock');
}));

test('The Tab key goes through everything in reading order', () => onHome(used, {}, async (page) => {
  const path = [];
  for (let i = 0; i < 21; i++) {
    await page.keyboard.press('Tab');
    path.push(await focused(page));
  }
  assert.deepEqual(path, ['Skip to the screen', 'Home', 'Edit', 'Add widget', path[4],
    'Open Tasks in the planner', 'Water the ferns', 'Call grandma', 'Reply to Mira',
    'Open Calendar in the planner', 'Water the ferns', 'Call grandma', 'Reply to Mira',
    'Open Mood Check-In in the planner', 'Yesterday', 'Today', 'Moment shown', 'Next change', 'Why it looks this way',
    path[19], path[20]]);
  assert.match(path[4], /^Home screen/);
}));

test('The tabs answer to the arrow keys, and the address keeps the choice', () => onHome(used, { mock: { widgets: lively } }, async (page) => {
  await page.getByRole('tab', { name: 'Home' }).focus();
  await page.keyboard.press('ArrowRight');
  assert.equal(await focused(page), 'Lock screen');
  await page.locator('#lock').waitFor();
  await page.reload();
  await page.locator('#lock').waitFor();
  assert.equal(await page.locator('#home').isVisible(), false);
}));

test('The gallery is filtered, used and left with the keyboard alone', () => onHome(used, {}, async (page) => {
  await page.getByRole('button', { name: 'Add widget' }).focus();
  await page.keyboard.press('Enter');
  await page.getByRole('dialog', { name: 'Add a widget' }).waitFor();
  assert.equal(await focused(page), 'Filter widgets');
  await page.keyboard.type('nothing like it');
  await page.getByText('No widget matches.').waitFor();
  await page.keyboard.press('Control+A');
  await page.keyboard.type('quote');
  assert.deepEqual(await page.locator('#gallery section:not([hidden]) h3').allTextContents(), ['Quote of the Day']);
  let reached = '';
  for (let i = 0; i < 4 && !reached.startsWith('Add Quote'); i++) {
    await page.keyboard.press('Tab');
    reached = await focused(page);
  }
  assert.equal(reached, 'Add Quote of the Day, Medium');
  await page.keyboard.press('Enter');
  await eventually(() => names(page), ['Tasks', 'Calendar', 'Mood Check-In', 'Quote of the Day']);
  await page.keyboard.press('Escape');
  await page.getByRole('dialog').waitFor({ state: 'hidden' });
  assert.equal(await focused(page), 'Add widget');
}));

test('A task is ticked with the keyboard, and the focus stays among the tasks', () => onHome(used, {}, async (page) => {
  const tasks = page.getByRole('article', { name: 'Tasks' });
  await tasks.getByRole('checkbox', { name: 'Water the ferns' }).focus();
  await page.keyboard.press('Space');
  await tasks.getByRole('checkbox', { name: 'Water the ferns' }).waitFor({ state: 'detached' });
  assert.equal(await focused(page), 'Call grandma');
}));

test('Changes of what is shown do not take the focus away', () => onHome(used, {}, async (page, mock) => {
  await page.getByRole('article', { name: 'Tasks' }).getByRole('checkbox', { name: 'Call grandma' }).focus();
  mock.home.move(1, 2);
  await eventually(() => names(page), ['Calendar', 'Mood Check-In', 'Tasks']);
  assert.equal(await focused(page), 'Call grandma');
}));

for (const [name, window] of [
  ['a window of 320 pixels', { viewport: { width: 320, height: 640 } }],
  ['200 % zoom', { viewport: { width: 700, height: 475 }, deviceScaleFactor: 2 }],
]) {
  test(`In ${name} nothing runs over the edge, and the controls lie on the picture`, () => onHome(used, { window }, async (page, mock) => {
    assert.equal(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), true);
    const shares = await page.evaluate(() => {
      const tile = document.querySelector('[data-id="1"] .tile').getBoundingClientRect();
      const box = document.querySelector('[data-id="1"] input');
      const { left, top } = box.getBoundingClientRect();
      const middle = parseFloat(box.style.getPropertyValue('--middle'));
      return [(left - tile.left) * 158 / tile.width, (top - tile.top) * 158 / tile.width + middle];
    });
    assert.deepEqual(shares.map((share) => Math.round(share * 10) / 10), [16, 50.5]);
    await page.getByRole('checkbox', { name: 'Water the ferns' }).first().click();
    await page.locator('[data-id="1"]').getByRole('checkbox', { name: 'Water the ferns' }).waitFor({ state: 'detached' });
    const scale = window.deviceScaleFactor ?? 1;
    assert.ok(mock.requests.some((one) => one.includes(`picture?scale=${scale}&`)), 'pictures as dense as the display');
    await page.getByRole('button', { name: 'Add widget' }).click();
    await page.locator('.offer').first().waitFor();
    assert.equal(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), true);
    await assertAccessible(page, name);
  }));
}

test('From right to left the first widget stands at the right, and the arrows follow', () => onHome(used, { mock: { direction: 'rtl', locale: 'ar_EG' } },
  async (page) => {
    const [tasks, calendar] = await Promise.all([1, 2].map((id) => page.locator(`[data-id="${id}"]`).boundingBox()));
    assert.ok(tasks.x > calendar.x);
    assert.equal(await page.locator('html').getAttribute('dir'), 'rtl');
    const frame = await page.evaluate(() => document.querySelector('[data-id="1"] input').getBoundingClientRect().left -
      document.querySelector('[data-id="1"] .tile').getBoundingClientRect().left);
    assert.equal(frame, 16, 'frames count from the left in either direction');
    await page.getByRole('button', { name: 'Edit', exact: true }).click();
    await page.getByRole('button', { name: 'Move Tasks', exact: true }).press('ArrowLeft');
    await eventually(() => names(page), ['Calendar', 'Tasks', 'Mood Check-In']);
    await assertAccessible(page, 'right to left');
  }));
