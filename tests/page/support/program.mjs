import { execFileSync, spawn } from 'node:child_process';
import { existsSync } from 'node:fs';
import { mkdir, mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { createInterface } from 'node:readline';

const build = new URL('../../../build/', import.meta.url).pathname;

/** Where the program is, or null. */
export const program = [process.env.MIRUNE, join(build, 'release/bin/mirune'), join(build, 'checking/bin/mirune')]
  .find((path) => path && existsSync(path)) ?? null;

/** The program's own home screen, on a sample container in a folder of its own. */
export class Program {
  /**
   * @param {string[]} options more options of `mirune serve`
   * @param {string[]} planner more options of `mirune demo`
   */
  static async start(options = [], planner = []) {
    const folder = await mkdtemp(join(tmpdir(), 'mirune-serve-'));
    await mkdir(join(folder, 'run'), { mode: 0o700 });
    const container = join(folder, 'container');
    const at = options.includes('--now') ? ['--now', options[options.indexOf('--now') + 1]] : [];
    execFileSync(program, ['demo', container, '--timezone', 'Europe/Berlin', ...at, ...planner]);
    const server = spawn(program, ['serve', '--port', '0', '--container', container, '--timezone', 'Europe/Berlin', ...options], {
      env: { ...process.env, XDG_DATA_HOME: join(folder, 'data'), XDG_RUNTIME_DIR: join(folder, 'run') },
      stdio: ['ignore', 'pipe', 'ignore'],
    });
    const [line] = await Promise.race([
      once(createInterface(server.stdout), 'line'),
      once(server, 'exit').then(([code]) => { throw new Error(`mirune serve ended with ${code}`); }),
    ]);
    return new Program(folder, server, line.split(' ').at(-1));
  }

  constructor(folder, server, address) {
    this.folder = folder;
    this.container = join(folder, 'container');
    this.server = server;
    this.address = address;
  }

  async close() {
    const ended = once(this.server, 'exit');
    this.server.kill('SIGTERM');
    const [code] = await ended;
    await rm(this.folder, { recursive: true });
    if (code !== 0) throw new Error(`mirune serve ended with ${code}`);
  }
}

function once(emitter, event) {
  return new Promise((resolve) => { emitter.once(event, (...values) => resolve(values)); });
}
