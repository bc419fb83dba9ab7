// The page with the program's own server behind it.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFile } from 'node:fs/promises';
import { join } from 'node:path';
import { test } from 'node:test';
import { assertAccessible, eventually, names, useBrowser, withPage } from './support/browser.mjs';
import { Program, program } from './support/program.mjs';

const used = useBrowser();
const skip = program ? false : 'the program is not built';

/** @param {string[]} options @param {(page: import('playwright-core').Page, host: Program) => Promise<void>} steps */
async function onProgram(options, steps) {
  const host = await Program.start(options);
  try {
    await withPage(used.browser, host.address, {}, (page) => steps(page, host));
  } finally {
    await host.close();
  }
}

const tasks = (page) => page.locator('#home .widget').filter({ has: page.getByText('Tasks', { exact: true }) }).first();
const labels = (page) => tasks(page).locator('.tick').evaluateAll((ticks) => ticks.map((tick) => tick.getAttribute('aria-label')));
test('All widgets of the first start are drawn, and a tick is recorded in both files', { skip }, () => onProgram([], async (page, host) => {
  const widgets = page.locator('#home .widget');
  await eventually(() => widgets.count(), 8);
  await widgets.first().locator('img').waitFor();
  assert.equal(await widgets.last().locator('img').count(), 0, 'what is far below is not asked for yet');
  for (const widget of await widgets.all()) {
    await widget.scrollIntoViewIfNeeded();
    await widget.locator('img').waitFor();
  }
  await eventually(async () => (await labels(page)).length, 3);
  const [first] = await labels(page);
  await tasks(page).locator('.tick').first().click();
  await eventually(async () => (await labels(page)).includes(first), false);
  const files = await Promise.all(['', '2'].map((number) =>
    readFile(join(host.container, `interactive-widgets-state${number}.json`), 'utf8')));
  assert.equal(files[0], files[1]);
  assert.equal(Object.keys(JSON.parse(files[0])).length, 1);
  await assertAccessible(page, 'home');
}));

test('A widget is placed, drawn, moved, seen at another time, and removed', { skip }, () => onProgram([], async (page) => {
  const before = await names(page);
  await page.locator('#add').click();
  await page.locator('#gallery [aria-labelledby="kind-tasks"] [data-family="systemSmall"] button').click();
  await eventually(async () => (await names(page)).length, before.length + 1);
  await page.keyboard.press('Escape');
  const id = await page.locator('#home .widget').last().getAttribute('data-id');
  const own = page.locator(`[data-id="${id}"]`);
  await own.scrollIntoViewIfNeeded();
  await own.locator('img').waitFor();
  assert.deepEqual(await own.locator('img').evaluate((one) => [one.naturalWidth, one.offsetWidth]), [158, 158]);

  await page.locator('#edit').click();
  await own.locator('.handle').press('Home');
  const first = () => page.locator('#home .widget').first().getAttribute('data-id');
  await eventually(first, id);
  await page.reload();
  await own.waitFor();
  assert.equal(await first(), id, 'the order is kept');

  await own.scrollIntoViewIfNeeded();
  await page.locator('#slider').press('End');
  await page.waitForFunction(() => document.querySelector('#away').textContent);
  await own.locator('img').waitFor();
  assert.equal(await own.locator('a[href]').count(), 0);
  await page.locator('#now').click();
  await page.locator('#why summary').click();
  await page.locator('#why-content h4').first().waitFor();
  await assertAccessible(page, 'home');

  await page.locator('#edit').click();
  await own.locator('.remove').click();
  await eventually(() => names(page), before);
}));

test('The mark of a tapped box covers the box in the picture', { skip }, () => onProgram(['--now', '2026-11-21T09:00:00Z'], async (page, host) => {
  for (const [name, kind, family] of [['Tasks', 'tasks', 'systemSmall'], ['Events and Tasks', 'combined', 'systemMedium']]) {
    const widget = page.getByRole('article', { name, exact: true }).first();
    await widget.locator('.tick').first().waitFor();
    const marks = await widget.locator('.tick').evaluateAll((ticks) => ticks.map((tick) => {
      tick.classList.add('waiting');
      const mark = getComputedStyle(tick, '::before');
      return [tick.offsetLeft + parseFloat(mark.left), tick.offsetTop + parseFloat(mark.top) + parseFloat(mark.height) / 2, parseFloat(mark.width)];
    }));
    const file = join(host.folder, `${kind}.json`);
    execFileSync(program, ['render', kind, family, '-o', file, '--container', host.container, '--timezone', 'Europe/Berlin', '--now', '2026-11-21T09:00:00Z']);
    const boxes = JSON.parse(await readFile(file, 'utf8')).drawn.filter(({ shape, stroke }) => shape === 'roundedRectangle' && stroke)
      .map(({ frame: [x, y, width, height] }) => [x, y + height / 2, width]);
    assert.equal(marks.length, boxes.length, kind);
    marks.flat().forEach((value, i) => assert.ok(Math.abs(value - boxes.flat()[i]) <= 1, `${kind}: ${marks} for ${boxes}`));
  }
}));

test('The page speaks the host’s language', { skip }, () => onProgram(['--locale', 'he_IL'], async (page) => {
  await eventually(() => page.locator('html').evaluate(({ dir, lang }) => [dir, lang]), ['rtl', 'he-IL']);
  for (const text of ['#add', '#tab-lock', '#why-title']) assert.match(await page.locator(text).textContent(), /^[^A-Za-z]*[א-ת][^A-Za-z]*$/, text);
}));
