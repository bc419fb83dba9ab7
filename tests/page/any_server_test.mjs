// What holds for every server, the program's own among them: MIRUNE_PAGE_ADDRESS is the address that it printed.
// Without it a stand-in is used. The address is opened once, and what the test places it removes again.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { program } from './mock/mirune_pictures.mjs';
import { startMock } from './mock/server.mjs';
import { assertAccessible, eventually, names, useBrowser, withPage } from './support/browser.mjs';

const used = useBrowser();

/** @param {(page: import('playwright-core').Page) => Promise<void>} steps */
async function onAnyServer(steps) {
  const address = process.env.MIRUNE_PAGE_ADDRESS;
  const mock = address ? null : await startMock({ pictures: program ? 'mirune' : 'plain', widgets: [['calendar', 'systemSmall']] });
  try {
    await withPage(used.browser, address ?? mock.address, {}, steps);
  } finally {
    await mock?.close();
  }
}

test('A widget is placed, drawn, ticked, moved, seen at another time, and removed', () => onAnyServer(async (page) => {
  const before = await names(page);
  await page.locator('#add').click();
  await page.locator('#gallery [aria-labelledby="kind-tasks"] [data-family="systemSmall"] button').click();
  await eventually(async () => (await names(page)).length, before.length + 1);
  await page.keyboard.press('Escape');

  const widget = page.locator('#home .widget').last();
  const id = await widget.getAttribute('data-id');
  const own = page.locator(`[data-id="${id}"]`);
  await own.locator('img').waitFor();
  assert.deepEqual(await own.locator('img').evaluate((one) => [one.naturalWidth, one.offsetWidth]), [158, 158]);

  const box = own.locator('.tick').first();
  if (await box.count()) {
    const label = await box.getAttribute('aria-label');
    const picture = await own.locator('img').getAttribute('data-picture');
    await box.click();
    await own.getByRole('checkbox', { name: label, exact: true }).waitFor({ state: 'detached' });
    await page.waitForFunction(([one, old]) => document.querySelector(`[data-id="${one}"] img`).dataset.picture !== old, [id, picture]);
  }

  await page.locator('#edit').click();
  await own.locator('.handle').press('Home');
  await eventually(() => page.locator('#home .widget').first().getAttribute('data-id'), id);
  await page.reload();
  await own.waitFor();
  assert.equal(await page.locator('#home .widget').first().getAttribute('data-id'), id, 'the order is kept');

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
  await own.waitFor({ state: 'detached' });
  await eventually(() => names(page), before);
}));
