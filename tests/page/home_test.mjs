import assert from 'node:assert/strict';
import { test } from 'node:test';
import { eventually, names, onHome, useBrowser } from './support/browser.mjs';

const used = useBrowser();
const said = (page) => page.locator('#said').textContent();
const placed = (mock, place) => mock.home.place(place).map((widget) => widget.shortName);

test('A lock screen without room says so', () => onHome(used, {
  mock: { widgets: [['tasks', 'accessoryRectangular'], ['habits', 'accessoryRectangular']] },
}, async (page, mock) => {
  await page.getByRole('button', { name: 'Add widget' }).click();
  await page.getByRole('button', { name: 'Add Tasks, Circular' }).click();
  await page.waitForFunction(() => document.querySelector('#gallery-said').textContent.includes('no room below the clock'));
  assert.equal(mock.home.place('lock').length, 2);
}));

test('Widgets stand on the grid at their true sizes', () => onHome(used, {
  mock: { widgets: [['tasks', 'systemSmall'], ['calendar', 'systemSmall'], ['mood', 'systemMedium'], ['moods', 'systemLarge']] },
}, async (page) => {
  const screen = await page.locator('.screen').boundingBox();
  const boxes = await page.locator('#home .tile').evaluateAll((tiles) => tiles.map((tile) => {
    const { x, y, width, height } = tile.getBoundingClientRect();
    return [x, y, width, height];
  }));
  assert.deepEqual(boxes.map(([x, y, width, height]) => [x - screen.x, y - boxes[0][1], width, height]),
    [[26, 0, 158, 158], [206, 0, 158, 158], [26, 196, 338, 158], [26, 392, 338, 354]]);
}));

test('A tapped box fills at once, and its item leaves when the host has marked it', () => onHome(used, {}, async (page, mock) => {
  let open;
  mock.home.tapGate = new Promise((resolve) => { open = resolve; });
  const box = page.getByRole('article', { name: 'Tasks' }).getByRole('checkbox', { name: 'Water the ferns' });
  const before = await page.locator('[data-id="1"] img').getAttribute('data-picture');
  await box.click();
  assert.equal(await box.isChecked(), true);
  assert.match(await box.getAttribute('class'), /waiting/);
  open();
  await box.waitFor({ state: 'detached' });
  await page.waitForFunction((old) => document.querySelector('[data-id="1"] img').dataset.picture !== old, before);
  await eventually(() => said(page), 'Done: Water the ferns');
}));

test('A tap that fails puts the box back and says why', () => onHome(used, {}, async (page, mock) => {
  mock.home.tapFailure = 'The disk is full.';
  const box = page.getByRole('article', { name: 'Tasks' }).getByRole('checkbox', { name: 'Call grandma' });
  await box.click();
  await eventually(() => said(page), '“Call grandma” could not be marked: The disk is full.');
  assert.equal(await box.isChecked(), false);
  mock.home.tapFailure = null;
  await box.click();
  await box.waitFor({ state: 'detached' });
}));

test('Taps lead where the widget says, else to the planner, and never run a script', () => onHome(used, {
  mock: { widgets: [['mood', 'systemMedium'], ['moods', 'systemLarge'], ['tasks', 'systemSmall']] },
}, async (page, mock) => {
  const links = () => page.locator('#home a').evaluateAll((all) => all.map((one) =>
    [one.getAttribute('aria-label'), one.getAttribute('href'), one.target, one.rel]));
  const outside = ['_blank', 'noopener noreferrer'];
  assert.deepEqual(await links(), [
    ['Open Mood Check-In in the planner', 'https://planner.example/', ...outside],
    ['Yesterday', 'https://planner.example/mood/1', ...outside],
    ['Today', 'https://planner.example/mood/0', ...outside],
    ['Open Moods in the planner', 'https://planner.example/moodchart', ...outside],
    ['Open Tasks in the planner', 'https://planner.example/', ...outside]]);
  mock.home.settings.plannerURL = 'javascript:alert(1)';
  mock.home.changed();
  await eventually(async () => (await links())[4], ['Open Tasks in the planner', null, ...outside]);
}));

test('A widget is removed in edit mode, and the focus goes to its neighbour', () => onHome(used, {}, async (page, mock) => {
  await page.getByRole('button', { name: 'Edit', exact: true }).click();
  await page.getByRole('button', { name: 'Remove Calendar' }).click();
  await eventually(() => names(page), ['Tasks', 'Mood Check-In']);
  await eventually(() => placed(mock, 'home'), ['tasks', 'mood']);
  assert.equal(await page.evaluate(() => document.activeElement.getAttribute('aria-label')), 'Remove Mood Check-In');
}));

test('The arrow keys on a handle move a widget, and it is said where it went', () => onHome(used, {}, async (page, mock) => {
  await page.getByRole('button', { name: 'Edit', exact: true }).click();
  const handle = page.getByRole('button', { name: 'Move Tasks', exact: true });
  await handle.focus();
  for (const [key, order, text] of [
    ['ArrowRight', ['calendar', 'tasks', 'mood'], 'Tasks moved to position 2 of 3'],
    ['End', ['calendar', 'mood', 'tasks'], 'Tasks moved to position 3 of 3'],
    ['ArrowUp', ['calendar', 'tasks', 'mood'], 'Tasks moved to position 2 of 3'],
    ['Home', ['tasks', 'calendar', 'mood'], 'Tasks moved to position 1 of 3'],
  ]) {
    await page.keyboard.press(key);
    assert.equal(await said(page), text);
    await eventually(() => placed(mock, 'home'), order);
    assert.equal(await handle.evaluate((one) => one === document.activeElement), true, key);
  }
}));

test('Moves that follow one another quickly all arrive, in order', () => onHome(used, {}, async (page, mock) => {
  await page.getByRole('button', { name: 'Edit', exact: true }).click();
  await page.getByRole('button', { name: 'Move Mood Check-In', exact: true }).focus();
  for (const key of ['ArrowLeft', 'ArrowLeft', 'ArrowRight', 'ArrowLeft']) await page.keyboard.press(key);
  await eventually(() => placed(mock, 'home'), ['mood', 'tasks', 'calendar']);
  await eventually(() => names(page), ['Mood Check-In', 'Tasks', 'Calendar']);
}));

test('A widget is dragged to another place with the mouse', () => onHome(used, {}, async (page, mock) => {
  await page.getByRole('button', { name: 'Edit', exact: true }).click();
  const from = await page.locator('[data-id="1"]').boundingBox();
  const to = await page.locator('[data-id="3"]').boundingBox();
  await page.mouse.move(from.x + 60, from.y + 60);
  await page.mouse.down();
  await page.mouse.move(from.x + 70, from.y + 70, { steps: 3 });
  await page.mouse.move(to.x + 80, to.y + 90, { steps: 8 });
  await eventually(() => names(page), ['Calendar', 'Mood Check-In', 'Tasks']);
  await page.mouse.up();
  await eventually(() => placed(mock, 'home'), ['calendar', 'mood', 'tasks']);
  assert.equal(await page.locator('[data-id="1"]').evaluate((one) => one.style.transform), '');
}));

test('A drag to the lower edge scrolls the screen, and below the last widget is the end', () => onHome(used, {
  mock: { widgets: Array.from({ length: 7 }, () => ['mood', 'systemMedium']) },
}, async (page, mock) => {
  await page.getByRole('button', { name: 'Edit', exact: true }).click();
  const screen = await page.locator('.screen').boundingBox();
  const from = await page.locator('[data-id="1"]').boundingBox();
  await page.mouse.move(from.x + 100, from.y + 60);
  await page.mouse.down();
  await page.mouse.move(screen.x + 150, screen.y + screen.height - 8, { steps: 4 });
  await eventually(() => page.locator('#home .widget').last().getAttribute('data-id'), '1');
  await page.waitForFunction((end) => document.querySelector('[data-id="7"]').getBoundingClientRect().bottom < end,
    screen.y + screen.height - 150);
  const scrolled = await page.locator('#home').evaluate((home) => home.scrollTop);
  assert.ok(scrolled < 7 * 196, `the dragged widget does not make the screen longer: ${scrolled}`);
  await page.mouse.up();
  await eventually(() => mock.home.place('home').map((widget) => widget.id), [2, 3, 4, 5, 6, 7, 1]);
}));

test('Escape gives up a drag', () => onHome(used, {}, async (page, mock) => {
  await page.getByRole('button', { name: 'Edit', exact: true }).click();
  const from = await page.locator('[data-id="1"]').boundingBox();
  await page.mouse.move(from.x + 60, from.y + 60);
  await page.mouse.down();
  await page.mouse.move(from.x + 260, from.y + 80, { steps: 6 });
  await eventually(() => names(page), ['Calendar', 'Tasks', 'Mood Check-In']);
  await page.keyboard.press('Escape');
  await page.mouse.up();
  assert.deepEqual(await names(page), ['Tasks', 'Calendar', 'Mood Check-In']);
  assert.deepEqual(placed(mock, 'home'), ['tasks', 'calendar', 'mood']);
}));

test('A move that the host refuses is taken back', () => onHome(used, {}, async (page, mock) => {
  mock.home.move = () => { throw new Error('The disk is full.'); };
  await page.getByRole('button', { name: 'Edit', exact: true }).click();
  await page.getByRole('button', { name: 'Move Tasks', exact: true }).press('End');
  await eventually(() => said(page), 'The disk is full.');
  await eventually(() => names(page), ['Tasks', 'Calendar', 'Mood Check-In']);
}));

test('On the lock screen the inline widget stands above the clock and keeps its place when others move', () => onHome(used, {
  mock: { widgets: [['tasks', 'accessoryCircular'], ['events', 'accessoryInline'], ['tasks', 'accessoryRectangular'], ['habits', 'accessoryCircular']] },
}, async (page, mock) => {
  await page.getByRole('tab', { name: 'Lock screen' }).click();
  assert.deepEqual(await page.locator('#lock-inline .name').allTextContents(), ['Events']);
  assert.equal(await page.getByRole('meter', { name: 'Tasks' }).first().getAttribute('aria-valuetext'), '0 of 4');
  await page.getByRole('button', { name: 'Edit', exact: true }).click();
  await page.getByRole('button', { name: 'Move Habits', exact: true }).press('Home');
  await eventually(() => page.locator('#lock-widgets .name').allTextContents(), ['Habits', 'Tasks', 'Tasks']);
  await eventually(() => placed(mock, 'lock'), ['habits', 'tasks', 'events', 'tasks']);
  await eventually(() => page.locator('#lock-widgets .name').allTextContents(), ['Habits', 'Tasks', 'Tasks']);
}));

test('A failing widget keeps its picture and says since when', () => onHome(used, {}, async (page, mock) => {
  const before = await page.locator('[data-id="2"] img').getAttribute('data-picture');
  mock.home.failures.set(2, { message: 'The extension stopped.', since: '2026-11-21T09:32:00Z' });
  mock.home.changed();
  const age = page.locator('[data-id="2"] .age');
  await age.waitFor();
  assert.equal(await age.textContent(), 'from 10:00. Since Sat 21 Nov, 10:32: The extension stopped.');
  assert.equal(await page.locator('[data-id="2"] img').getAttribute('data-picture'), before);
}));

test('A widget that was never drawn holds its place until its picture comes', () => onHome(used, {}, async (page, mock) => {
  const id = mock.home.add('quote', 'systemMedium');
  mock.home.undrawn.add(id);
  mock.home.changed();
  await page.locator(`[data-id="${id}"] .placeholder`).waitFor();
  mock.home.undrawn.delete(id);
  mock.home.changed();
  await page.locator(`[data-id="${id}"] img`).waitFor();
  assert.equal(await page.locator(`[data-id="${id}"] .placeholder`).count(), 0);
}));
