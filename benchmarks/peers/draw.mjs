import { writeFileSync } from 'node:fs';

/** How many pictures a renderer may warm up with before its time counts: the machine code of its loops is made then. */
const warmUp = 60;

/**
 * Runs a card renderer's command line: FILE draws the card once; FILE N then stays, draws it N times more, and prints the
 * CPU time of each of those, of all threads, in microseconds.
 * @param {() => Promise<Buffer>} draw makes the card's PNG file
 */
export async function run(draw) {
  const [file, count] = process.argv.slice(2);
  writeFileSync(file, await draw());
  if (count === undefined) return;
  for (let i = 0; i < warmUp; ++i) await draw();
  const before = process.cpuUsage();
  for (let i = 0; i < Number(count); ++i) await draw();
  const { user, system } = process.cpuUsage(before);
  console.log((user + system) / Number(count));
}
