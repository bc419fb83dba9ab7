// The page with the program's own server behind it.
import assert from 'node:assert/strict';
import { existsSync } from 'node:fs';
import { readFile, rename, rm, writeFile } from 'node:fs/promises';
import { join } from 'node:path';
import { test } from 'node:test';
import { program } from './mock/mirune_pictures.mjs';
import { assertAccessible, eventually, useBrowser, withPage } from './support/browser.mjs';
import { Program } from './support/program.mjs';

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
const pictureOf = (page, name) => page.locator('#home .widget', { has: page.getByText(name, { exact: true }) }).first()
  .locator('img').getAttribute('data-picture');

test('All widgets of the first start are drawn, and a tick is recorded in both files', { skip }, () => onProgram([], async (page, host) => {
  await eventually(() => page.locator('#home .widget img').count(), 8);
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

test('Midnight passes', { skip }, () => onProgram(['--now', '2026-11-20T22:55:00Z', '--speed', '15'], async (page) => {
  await eventually(async () => typeof await pictureOf(page, 'Calendar'), 'string');
  const before = await pictureOf(page, 'Calendar');
  await page.waitForFunction((old) => [...document.querySelectorAll('#home .widget')]
    .find((one) => one.textContent.includes('Calendar')).querySelector('img').dataset.picture !== old, before);
}));

test('A widget whose extension is ended keeps its picture and goes on', { skip }, () => onProgram([], async (page, host) => {
  await eventually(() => page.locator('#home .widget img').count(), 8);
  for (let round = 0; round < 5; round += 1) {
    const killed = host.killExtension();
    const file = join(host.container, 'tasks.json');
    await writeFile(file, (await readFile(file, 'utf8')).replace(/Call [a-z0-9 ]+/, `Call number ${round}`));
    await killed;
    await eventually(async () => (await labels(page)).some((label) => label === `Call number ${round}`), true);
    assert.equal(await page.locator('#home .widget img').count(), 8);
  }
  assert.equal(host.server.exitCode, null);
}));

test('A container that is replaced is shown, one that is gone leaves empty lists', { skip }, () => onProgram([], async (page, host) => {
  await eventually(async () => (await labels(page)).length, 3);
  await rename(host.container, `${host.container}-old`);
  await eventually(async () => (await labels(page)).length, 0);
  assert.equal(await page.locator('#home .widget img').count(), 8);
  await rename(`${host.container}-old`, host.container);
  await eventually(async () => (await labels(page)).length, 3);
  await rm(join(host.container, 'tasks.json'));
  assert.equal(existsSync(join(host.container, 'tasks.json')), false);
  await eventually(async () => (await labels(page)).length, 2); // those of every day
}));

test('The page speaks the host’s language', { skip }, () => onProgram(['--locale', 'he_IL'], async (page) => {
  await eventually(() => page.locator('html').evaluate(({ dir, lang }) => [dir, lang]), ['rtl', 'he-IL']);
  for (const text of ['#add', '#tab-lock', '#why-title']) assert.match(await page.locator(text).textContent(), /^[^A-Za-z]*[א-ת][^A-Za-z]*$/, text);
}));
