import { createHash } from 'node:crypto';
import { png } from './png.mjs';

/** Drawings without the program: one colour each, with the meaning that such widgets have. */
export function plainPictures() {
  const tasks = ['Water the ferns', 'Call grandma', 'Reply to Mira', 'Buy oat milk'].map((label, i) => ({
    label, id: `00000000-0000-4000-8000-00000000000${i}`, date: '2026-11-20T23:00:00Z' }));
  const done = new Set();
  const midnights = ['2026-11-21T23:00:00Z', '2026-11-22T23:00:00Z'];

  const rows = (first, height, step) => (moment) => {
    const day = midnights.filter((midnight) => midnight <= moment).length;
    const open = tasks.filter((task) => !done.has(task.id)).slice(day);
    return open.slice(0, 3).map((task, i) => ({ role: 'checkbox', checked: false, ...task,
      frame: [first[0], first[1] + i * step, 110, height] }));
  };
  const listed = rows([16, 40], 21, 27);
  const meanings = {
    systemSmall: (_, moment) => [{ role: 'text', label: 'Tasks', frame: [16, 15, 41, 16] }, ...listed(moment)],
    systemMedium: (widget, moment) => (widget.shortName === 'mood'
      ? [{ role: 'text', label: 'How are you feeling today?', frame: [16, 30, 303, 38] },
        ...['Yesterday', 'Today'].map((label, i) => ({ role: 'link', label, url: `https://planner.example/mood/${1 - i}`,
          frame: [16 + 52 * i, 82, 45, 60] }))]
      : [{ role: 'text', label: 'Tasks', frame: [16, 15, 41, 16] }, ...listed(moment)]),
    systemLarge: () => [{ role: 'image', label: '1, Happy', frame: [20, 55, 29, 29] }],
    accessoryCircular: (_, moment) => [{ role: 'gauge', label: 'Tasks', value: done.size, total: tasks.length,
      frame: [0, 0, 72, 72] }].filter(() => moment),
    accessoryRectangular: (_, moment) => rows([0.5, 15.5], 17.5, 23.5)(moment).slice(0, 2),
    accessoryInline: () => [{ role: 'text', label: 'Grandma visits', frame: [66, 3, 117, 20] }],
  };
  const meaning = async (widget, moment) => ({
    url: widget.shortName === 'moods' ? 'https://planner.example/moodchart' : null,
    meaning: meanings[widget.family](widget, moment),
  });

  return {
    meaning,
    async draw(widget, moment, scale) {
      const { meaning: parts } = await meaning(widget, moment);
      const shade = createHash('sha1').update(JSON.stringify([widget.kind, parts])).digest();
      const white = widget.family.startsWith('accessory');
      return png(Math.round(widget.width * scale), Math.round(widget.height * scale),
        white ? [255, 255, 255, 90] : [225 + shade[0] % 30, 215 + shade[1] % 40, 205 + shade[2] % 40, 255]);
    },
    changes: async () => midnights,
    async tap(id) {
      if (!tasks.some((task) => task.id === id)) throw new Error('There is no such item.');
      done.add(id);
    },
  };
}
