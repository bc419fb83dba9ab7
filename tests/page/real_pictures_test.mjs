import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { mkdtemp, readFile, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { test } from 'node:test';
import { promisify } from 'node:util';
import { program } from './mock/mirune_pictures.mjs';
import { onHome, useBrowser } from './support/browser.mjs';

const run = promisify(execFile);
const used = useBrowser();
const skip = program ? false : 'the program is not built';
const families = [['tasks', 'systemSmall'], ['tasks', 'systemMedium'], ['combined', 'systemMedium'], ['tasks', 'accessoryRectangular']];

/** Where the program draws the boxes of a widget: [left, middle of the height, side]. */
async function drawnBoxes(kind, family) {
  const folder = await mkdtemp(join(tmpdir(), 'mirune-page-'));
  try {
    const now = ['--now', '2026-11-21T09:00:00Z', '--timezone', 'Europe/Berlin'];
    await run(program, ['demo', folder, ...now]);
    await run(program, ['render', kind, family, '-o', join(folder, 'drawn.json'), '--container', folder, '--locale', 'en_GB', ...now]);
    const { drawn } = JSON.parse(await readFile(join(folder, 'drawn.json'), 'utf8'));
    return drawn.filter(({ draw, shape, stroke }) => draw === 'shape' && shape === 'roundedRectangle' && stroke)
      .map(({ frame: [x, y, width, height] }) => [x, y + height / 2, width]);
  } finally {
    await rm(folder, { recursive: true, force: true });
  }
}

test('The mark of a tapped box covers the box in the picture', { skip }, () => onHome(used,
  { mock: { pictures: 'mirune', widgets: families } }, async (page, mock) => {
    mock.home.tapGate = new Promise(() => {});
    for (const [i, [kind, family]] of families.entries()) {
      if (family.startsWith('accessory')) await page.getByRole('tab', { name: 'Lock screen' }).click();
      const marks = await page.locator(`[data-id="${i + 1}"] .tick`).evaluateAll((ticks) => ticks.map((tick) => {
        tick.classList.add('waiting');
        const mark = getComputedStyle(tick, '::before');
        return [tick.offsetLeft + parseFloat(mark.left),
          tick.offsetTop + parseFloat(mark.top) + parseFloat(mark.height) / 2, parseFloat(mark.width)];
      }));
      const boxes = await drawnBoxes(kind, family);
      assert.equal(marks.length, boxes.length, `${kind} ${family}`);
      for (const [j, mark] of marks.entries()) {
        mark.forEach((value, k) => assert.ok(Math.abs(value - boxes[j][k]) <= 1, `${kind} ${family}: ${mark} for ${boxes[j]}`));
      }
    }
  }));

test('Ticking a task of the sample planner takes it out of every picture', { skip }, () => onHome(used,
  { mock: { pictures: 'mirune', widgets: [['tasks', 'systemSmall'], ['combined', 'systemMedium']] } }, async (page) => {
    const label = await page.locator('[data-id="1"] .tick').first().getAttribute('aria-label');
    const before = await page.locator('#home img').evaluateAll((all) => all.map((one) => one.dataset.picture));
    await page.locator('[data-id="1"] .tick').first().click();
    for (const id of [1, 2]) {
      await page.locator(`[data-id="${id}"]`).getByRole('checkbox', { name: label }).waitFor({ state: 'detached' });
      await page.waitForFunction(([widget, old]) => document.querySelector(`[data-id="${widget}"] img`).dataset.picture !== old,
        [id, before[id - 1]]);
    }
  }));
