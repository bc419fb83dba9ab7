// Takes pictures of the page, to look at: node support/look.mjs FOLDER
import { mkdir } from 'node:fs/promises';
import { chromium } from 'playwright-core';
import { fullHome, startMock } from '../mock/server.mjs';

const folder = process.argv[2] ?? 'pictures';
await mkdir(folder, { recursive: true });
const browser = await chromium.launch({ executablePath: '/usr/bin/chromium', args: ['--no-sandbox'] });

/** @param {import('playwright-core').Page} page */
const settled = (page) => page.waitForFunction(() => [...document.querySelectorAll('.page:not([hidden]) .picture')]
  .every((picture) => picture.querySelector('img')));

for (const theme of ['light', 'dark']) {
  const mock = await startMock({ pictures: 'mirune', widgets: fullHome, theme });
  mock.home.files = [
    { file: 'tasks.json', state: 'decoded', modified: '2026-11-21T07:40:00Z', size: 4127, problems: [], consequence: '' },
    { file: 'events.json', state: 'refused', modified: '2026-11-20T19:02:00Z', size: 812,
      problems: ['2026/11/21[3].calid: missing'], consequence: 'No events are shown.' },
  ];
  const open = async (size, path = '', options = {}) => {
    const page = await browser.newPage({ viewport: size, colorScheme: theme, ...options });
    page.on('console', (message) => { if (message.type() === 'error') console.log(theme, message.text()); });
    page.on('pageerror', (error) => console.log(theme, error.stack));
    await page.goto(mock.address + path);
    await page.waitForSelector('.widget');
    await settled(page);
    return page;
  };
  const take = (page, name) => page.screenshot({ path: `${folder}/${name}-${theme}.png` });

  const wide = { width: 1400, height: 920 };
  const page = await open(wide);
  await page.click('#why summary');
  await take(page, 'home');
  await page.click('#tab-lock');
  await settled(page);
  await take(page, 'lock');
  await page.click('#edit');
  await take(page, 'lock-edit');
  await page.click('#tab-home');
  await take(page, 'edit');
  await page.click('#edit');
  await page.click('#add');
  await page.waitForFunction(() => [...document.querySelectorAll('.offer img')].slice(0, 4).every((image) => image.complete));
  await take(page, 'gallery');
  await page.keyboard.press('Escape');
  await page.click('#next');
  await page.waitForResponse(/api\/at/);
  await page.waitForLoadState('networkidle').catch(() => {});
  await take(page, 'later');
  await page.close();

  const narrow = await open({ width: 320, height: 720 }, '', { deviceScaleFactor: 2 });
  await take(narrow, 'narrow');
  await narrow.close();
  const tablet = await open({ width: 900, height: 900 });
  mock.home.failures.set(1, { message: 'The extension stopped.', since: '2026-11-21T09:32:00Z' });
  mock.home.changed();
  await tablet.waitForSelector('.age:not([hidden])');
  await tablet.locator('.tick').first().focus();
  mock.home.tapGate = new Promise(() => {});
  await tablet.locator('.tick').first().press('Space');
  await take(tablet, 'middle');
  await tablet.close();
  if (theme === 'light') {
    Object.assign(mock.home.settings, { direction: 'rtl', locale: 'ar_EG', screen: { width: 375, height: 667 } });
    const rtl = await open({ width: 1000, height: 800 });
    await take(rtl, 'right-to-left');
    await rtl.click('#edit');
    await take(rtl, 'right-to-left-edit');
    await rtl.close();
  }
  await mock.close();
}
await browser.close();
