import { execFile } from 'node:child_process';
import { existsSync } from 'node:fs';
import { mkdtemp, readFile, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { promisify } from 'node:util';

const run = promisify(execFile);
const build = new URL('../../../build/', import.meta.url).pathname;

/** Where the program is, or null. */
export const program = [process.env.MIRUNE, join(build, 'release/bin/mirune'), join(build, 'checking/bin/mirune')]
  .find((path) => path && existsSync(path)) ?? null;

/** Drawings by the program itself, of a sample container of its own. */
export async function mirunePictures({ now, timeZone, locale, theme = 'light' }) {
  const folder = await mkdtemp(join(tmpdir(), 'mirune-page-'));
  const world = ['--container', folder, '--timezone', timeZone, '--locale', locale];
  await run(program, ['demo', folder, '--now', now, '--timezone', timeZone, '--theme', theme]);
  const kept = new Map();
  let count = 0;
  let taps = 0;

  function rendered(widget, moment, ending, scale) {
    const key = [taps, widget.kind, widget.family, moment, ending, scale].join(' ');
    if (!kept.has(key)) {
      const file = join(folder, `drawn-${count++}.${ending}`);
      const drawing = run(program, ['render', widget.kind, widget.family, '-o', file, ...world, '--now', now, '--at', moment,
        '--scale', String(scale), '--appearance', widget.family.startsWith('accessory') ? 'dark' : 'light'])
        .then(() => readFile(file));
      kept.set(key, drawing);
      drawing.catch(() => kept.delete(key));
    }
    return kept.get(key);
  }

  return {
    async meaning(widget, moment) {
      const { meaning, url } = JSON.parse(await rendered(widget, moment, 'json', 2));
      return { meaning, url: url ?? null };
    },
    draw: (widget, moment, scale) => rendered(widget, moment, 'png', scale),
    async changes(kinds) {
      const timelines = await Promise.all(kinds.map((kind) => run(program, ['timeline', kind, '--json', ...world,
        '--now', now], { maxBuffer: 1 << 28 })));
      return timelines.flatMap(({ stdout }) => JSON.parse(stdout).entries.map((entry) => entry.date));
    },
    async tap(id, date) {
      await run(program, ['tap', id, ...(date ? ['--date', date] : []), ...world, '--now', now]);
      taps++;
    },
    close: () => rm(folder, { recursive: true, force: true, maxRetries: 10, retryDelay: 100 }),
  };
}
