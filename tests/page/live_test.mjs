import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Refusal } from './mock/home.mjs';
import { eventually, names, onHome, useBrowser } from './support/browser.mjs';

const used = useBrowser();
/** Waits until all that is placed at the start is drawn. */
const drawn = (page) => eventually(() => page.locator('#home .widget .picture img').count(), 3);
const banner = (page) => page.locator('#connection').textContent();

test('A change on the host arrives without a reload, and only what changed is fetched', () => onHome(used, {}, async (page, mock) => {
  await drawn(page);
  const asked = mock.requests.length;
  mock.home.add('habits', 'systemSmall');
  await eventually(() => names(page), ['Tasks', 'Calendar', 'Mood Check-In', 'Habits']);
  await page.locator('[data-id="4"] img').waitFor();
  assert.deepEqual(mock.requests.slice(asked).filter((one) => one.includes('/picture')).map((one) => one.split('?')[0]),
    ['GET /api/widgets/4/picture']);
}));

test('A lost connection is said, and the page catches up when it is back', () => onHome(used, {}, async (page, mock) => {
  await drawn(page);
  mock.cut();
  await eventually(() => banner(page), 'Reconnecting…');
  assert.equal(await page.locator('#home img').count(), 3);
  mock.home.add('quote', 'systemMedium');
  mock.heal();
  await eventually(() => names(page), ['Tasks', 'Calendar', 'Mood Check-In', 'Quote of the Day']);
  await eventually(() => banner(page), '');
}));

test('A state that cannot be had is asked for again', () => onHome(used, {}, async (page, mock) => {
  await drawn(page);
  const { state } = mock.home;
  mock.home.state = () => { throw new Refusal(502, 'The extension stopped.'); };
  mock.home.add('quote', 'systemMedium');
  await eventually(() => banner(page), 'Reconnecting…');
  mock.home.state = state;
  await eventually(() => names(page), ['Tasks', 'Calendar', 'Mood Check-In', 'Quote of the Day']);
  assert.equal(await banner(page), '');
}));

test('A picture that cannot be had is asked for again, and the old one stays meanwhile', () => onHome(used, {}, async (page, mock) => {
  await drawn(page);
  const { draw } = mock.home.pictures;
  let refused = 0;
  mock.home.pictures.draw = () => {
    refused++;
    throw new Refusal(502, 'The extension stopped.');
  };
  const picture = () => page.locator('[data-id="1"] img').getAttribute('data-picture');
  const before = await picture();
  await page.locator('[data-id="1"]').getByRole('checkbox', { name: 'Water the ferns' }).click();
  await page.locator('[data-id="1"]').getByRole('checkbox', { name: 'Water the ferns' }).waitFor({ state: 'detached' });
  await eventually(() => refused > 0, true);
  assert.equal(await picture(), before);
  mock.home.pictures.draw = draw;
  await page.waitForFunction((old) => document.querySelector('[data-id="1"] img').dataset.picture !== old, before);
}));

test('Without access the page says what to do', () => onHome(used, {}, async (page, mock) => {
  mock.deny = true;
  mock.cut();
  mock.heal();
  await page.waitForFunction(() => document.querySelector('#connection').textContent.includes('mirune serve'));
}));

test('The clock goes by the host’s time, zone and language', () => onHome(used, {
  mock: { now: '2026-11-21T15:04:58Z', speed: 10, timeZone: 'America/New_York', locale: 'en_US' },
}, async (page) => {
  await eventually(() => page.locator('#status-time').textContent(), '10:05');
  assert.equal(await page.locator('#lock-date').textContent(), 'Saturday, November 21');
  await eventually(() => page.locator('#status-time').textContent(), '10:06');
}));

test('In a language from right to left the page is mirrored, and its own texts are of that language', () => onHome(used, {
  mock: { direction: 'rtl', locale: 'ar_EG', words: { Edit: 'تعديل', 'Add widget': 'إضافة أداة', Home: 'الرئيسية', 'Lock screen': 'شاشة القفل',
    'Move %@': 'نقل %@', '%1$@ moved to position %2$@ of %3$@': '%1$@: %2$@/%3$@' } },
}, async (page) => {
  const html = page.locator('html');
  await eventually(async () => [await html.getAttribute('dir'), await html.getAttribute('lang')], ['rtl', 'ar-EG']);
  const x = async (id) => (await page.locator(id).boundingBox()).x;
  assert.ok(await x('#edit') > await x('#add') && await x('#tab-home') > await x('#tab-lock') && await x('.time') > await x('.phone'));
  assert.equal(await page.locator('#add').textContent(), 'إضافة أداة');
  await page.getByRole('tab', { name: 'شاشة القفل' }).waitFor();
  await page.getByRole('button', { name: 'تعديل' }).click();
  await page.getByRole('button', { name: 'نقل Tasks' }).press('ArrowLeft');
  assert.equal(await page.locator('#said').textContent(), 'Tasks: ٢/٣');
}));

test('The time slider shows what will be seen, and nothing can be tapped meanwhile', () => onHome(used, {}, async (page, mock) => {
  const shown = async () => (await page.locator('#chosen').textContent()).replace(/\b00:/, '0:');
  const boxes = () => page.locator('[data-id="1"] input').evaluateAll((all) => all.map((one) => [one.ariaLabel, one.disabled]));
  assert.equal(await shown(), 'Saturday 21 November 10:00');
  await page.getByRole('button', { name: 'Next change' }).click();
  await eventually(shown, 'Sunday 22 November 0:00');
  await eventually(boxes, [['Call grandma', true], ['Reply to Mira', true], ['Buy oat milk', true]]);
  await page.waitForFunction(() => document.querySelector('#away').textContent.includes('Sunday 22 November'));
  assert.ok(mock.requests.some((one) => one.includes('/api/widgets/1/picture?scale=1&at=2026-11-21T23')), 'the picture of then');
  assert.equal(await page.locator('#home a[href]').count(), 0);

  await page.getByRole('button', { name: 'Next change' }).click();
  await eventually(boxes, [['Reply to Mira', true], ['Buy oat milk', true]]);
  assert.equal(await page.getByRole('button', { name: 'Next change' }).isDisabled(), true);
  await page.getByRole('button', { name: 'Previous change' }).click();
  await eventually(shown, 'Sunday 22 November 0:00');

  await page.getByRole('button', { name: 'Now', exact: true }).click();
  await eventually(boxes, [['Water the ferns', false], ['Call grandma', false], ['Reply to Mira', false]]);
  await eventually(() => page.locator('#away').textContent(), '');
}));

test('The slider goes minute by minute with the keyboard, and asks only where it rests', () => onHome(used, {}, async (page, mock) => {
  const slider = page.getByRole('slider', { name: 'Moment shown' });
  await slider.focus();
  const asked = mock.requests.length;
  for (let i = 0; i < 10; i++) await page.keyboard.press('ArrowRight');
  await eventually(() => slider.getAttribute('aria-valuetext'), 'Saturday 21 November at 10:10');
  await page.waitForResponse(/api\/at/).catch(() => {});
  const moments = mock.requests.slice(asked).filter((one) => one.includes('/api/at'));
  assert.ok(moments.length < 10, moments.join('\n'));
  assert.match(moments.at(-1), /2026-11-21T09%3A10%3A00Z/);
  assert.equal(await page.locator('#ticks span').count(), 2);
}));

test('The drawer says why', () => onHome(used, {}, async (page, mock) => {
  mock.home.files = [
    { file: 'tasks.json', state: 'decoded', modified: '2026-11-21T07:40:00Z', size: 4127, problems: [], consequence: '' },
    { file: 'events.json', state: 'refused', modified: null, size: 812, problems: ['2026/11/21[3].calid: missing'], consequence: 'No events are shown.' },
  ];
  await page.getByText('Why it looks this way').click();
  const tasks = page.locator('#why-content li').filter({ has: page.locator('h4', { hasText: /^Tasks / }) });
  await tasks.waitFor();
  assert.match(await tasks.textContent(), /Next changeSun 22 Nov, 0?0:00.*because: the timeline ends/);
  const events = page.locator('#why-content li').filter({ hasText: 'events.json' });
  assert.match(await events.first().textContent(), /Refused.*2026\/11\/21\[3\]\.calid: missing.*No events are shown\./);
  mock.home.failures.set(1, { message: 'The extension stopped.', since: '2026-11-21T09:32:00Z' });
  mock.home.changed();
  await tasks.filter({ hasText: 'The extension stopped.' }).waitFor();
}));
