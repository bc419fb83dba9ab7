import assert from 'node:assert/strict';
import { after, before } from 'node:test';
import { readFile } from 'node:fs/promises';
import { createRequire } from 'node:module';
import { chromium } from 'playwright-core';
import { startMock } from '../mock/server.mjs';

const axe = await readFile(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const executablePath = process.env.CHROMIUM ?? '/usr/bin/chromium';

/** How long a condition may take, in milliseconds. */
const patience = 30_000;

/** Starts one browser for the tests of a file; call it at the file's top level. @param {string[]} [options] of Chromium's */
export function useBrowser(options = []) {
  const used = { browser: null };
  before(async () => { used.browser = await chromium.launch({ executablePath, args: ['--no-sandbox', ...options] }); });
  after(() => used.browser?.close());
  return used;
}

/** Everything that the page complains about: uncaught errors, refused styles and scripts. */
function watch(page) {
  const complaints = [];
  page.on('pageerror', (error) => complaints.push(error.stack ?? error.message));
  page.on('console', (message) => {
    if (/Content Security Policy|TypeError/.test(message.text())) complaints.push(message.text());
  });
  return complaints;
}

/** Opens an address in a window of its own, runs the steps, and fails if the page complained. */
export async function withPage(browser, address, options, steps) {
  const context = await browser.newContext({ viewport: { width: 1400, height: 950 }, locale: 'en-GB', ...options });
  context.setDefaultTimeout(patience);
  const page = await context.newPage();
  const complaints = watch(page);
  try {
    await page.goto(address);
    await page.waitForFunction(() => document.querySelector('.widget .picture img') || document.querySelector('.empty:not([hidden])'));
    await steps(page);
    assert.deepEqual(complaints, []);
  } finally {
    await context.close();
  }
}

/**
 * A page on a home screen of its own.
 * @param {{browser: import('playwright-core').Browser}} used
 * @param {{mock?: object, window?: object}} options what the mock server holds, and how the window is
 * @param {(page: import('playwright-core').Page, mock: Awaited<ReturnType<typeof startMock>>) => Promise<void>} steps
 */
export async function onHome(used, { mock: settings = {}, window = {} }, steps) {
  const mock = await startMock({ widgets: [['tasks', 'systemSmall'], ['calendar', 'systemSmall'], ['mood', 'systemMedium']], ...settings });
  try {
    await withPage(used.browser, mock.address, window, (page) => steps(page, mock));
  } finally {
    await mock.close();
  }
}

/** Waits until a reading of the page or the mock equals what is expected, and says what it was if it never does. */
export async function eventually(read, expected) {
  const deadline = Date.now() + patience;
  for (;;) {
    const seen = await read();
    try {
      assert.deepEqual(seen, expected);
      return;
    } catch (error) {
      if (Date.now() > deadline) throw error;
    }
    await new Promise((resolve) => { setTimeout(resolve, 20); });
  }
}

/** The names of the widgets on a screen, in order. */
export const names = (page, place = 'home') => page.locator(`#${place} .widget .name`).allTextContents();

/** Fails with what axe finds wrong with the page as it is. */
export async function assertAccessible(page, what) {
  await page.evaluate(axe);
  const problems = await page.evaluate(async () => {
    const { violations } = await window.axe.run(document, {
      runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'] });
    return violations.map(({ id, nodes }) => `${id}: ${nodes.map((node) => `${node.target} ${node.failureSummary}`).join(' | ')}`);
  });
  assert.deepEqual({ [what]: problems }, { [what]: [] });
}
