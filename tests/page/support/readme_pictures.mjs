// Takes the README's pictures of the live home screen: npm run pictures
import { chromium } from 'playwright-core';
import { Program } from './program.mjs';

const folder = process.argv[2] ?? '.';
const now = ['--now', '2026-11-21T08:41:00Z'];
const pictures = [
  { name: 'home-light', options: [] },
  { name: 'home-dark', options: [], theme: 'dark' },
  { name: 'home-arabic', options: ['--locale', 'ar_EG'] },
  { name: 'home-japanese', options: ['--locale', 'ja_JP'], theme: 'dark' },
  { name: 'lock', options: [], tab: '#tab-lock' },
];
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
for (const { name, options, theme = 'light', tab } of pictures) {
  const program = await Program.start([...now, '--locale', 'en_US', ...options], ['--theme', theme]);
  const page = await browser.newPage({ viewport: { width: 1100, height: 1000 }, deviceScaleFactor: 1.1 });
  await page.goto(program.address);
  if (tab) await page.click(tab);
  await page.waitForFunction(() => {
    const shown = [...document.querySelectorAll('.page:not([hidden]) .widget .picture')];
    return shown.length > 0 && shown.every((picture) => picture.querySelector('img')?.complete);
  });
  await page.locator('.phone').screenshot({ path: `${folder}/${name}.png`, omitBackground: true });
  await page.close();
  await program.close();
}
await browser.close();
