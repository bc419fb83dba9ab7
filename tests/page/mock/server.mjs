import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import { extname, join, normalize } from 'node:path';
import { Home, Refusal } from './home.mjs';
import { plainPictures } from './plain_pictures.mjs';
import { catalogue } from './catalogue.mjs';

const pageFolder = new URL('../../../host/page/', import.meta.url).pathname;
const types = { '.html': 'text/html; charset=utf-8', '.css': 'text/css', '.js': 'text/javascript', '.svg': 'image/svg+xml' };
const headers = {
  'Content-Security-Policy': "default-src 'self'; frame-ancestors 'none'; base-uri 'none'",
  'X-Content-Type-Options': 'nosniff', 'Referrer-Policy': 'no-referrer', 'Cache-Control': 'no-store',
};

async function bodyOf(request) {
  const chunks = [];
  for await (const chunk of request) chunks.push(chunk);
  return JSON.parse(Buffer.concat(chunks).toString() || '{}');
}

/** The routes: method, pattern of the path, and what answers; an answer is [status, body]. */
const routes = [
  ['GET', /^\/api\/state$/, async (home) => [200, await home.state()]],
  ['GET', /^\/api\/why$/, async (home) => [200, await home.why()]],
  ['GET', /^\/api\/at$/, async (home, _, { query }) => [200, await home.at(query.get('moment'))]],
  ['GET', /^\/api\/preview$/, async (home, _, { query }) => {
    const kind = catalogue.find((one) => one.kind === query.get('kind'));
    const size = kind?.families.find((one) => one.family === query.get('family'));
    if (!size) throw new Refusal(400, 'There is no such widget.');
    return [200, await home.pictures.draw({ ...kind, ...size }, home.settings.now, Number(query.get('scale')))];
  }],
  ['GET', /^\/api\/widgets\/(\d+)\/picture$/, async (home, [, id], { query }) => [200,
    await home.pictures.draw(home.widget(Number(id)), home.minute(query.get('at') ?? home.now()), Number(query.get('scale')))]],
  ['POST', /^\/api\/widgets$/, async (home, _, { body }) => [201, { id: home.add(body.kind, body.family, body.place) }]],
  ['DELETE', /^\/api\/widgets\/(\d+)$/, async (home, [, id]) => [204, home.remove(Number(id))]],
  ['POST', /^\/api\/widgets\/(\d+)\/move$/, async (home, [, id], { body }) => [204, home.move(Number(id), body.position)]],
  ['POST', /^\/api\/widgets\/(\d+)\/tap$/, async (home, [, id], { body }) => [204, await home.tap(Number(id), body)]],
];

/**
 * A stand-in for the program's server, for tests of the page.
 * Tests steer it: `deny` answers 403 to everything, `cut` ends every connection and lets none in until `heal`.
 */
export async function startMock({ widgets = [], port = 0, ...settings } = {}) {
  const home = new Home({ pictures: plainPictures(), ...settings });
  for (const [kind, family] of widgets) home.add(kind, family);
  const mock = { home, deny: false, cutOff: false, requests: [] };
  const streams = new Set();

  function follow(response) {
    const send = (version) => response.write(`event: state\ndata: ${JSON.stringify({ version })}\n\n`);
    response.writeHead(200, { ...headers, 'Content-Type': 'text/event-stream' });
    response.write('retry: 200\n');
    send(home.version);
    home.observers.add(send);
    streams.add(response);
    response.on('close', () => {
      home.observers.delete(send);
      streams.delete(response);
    });
  }

  async function answer(request) {
    const url = new URL(request.url, 'http://localhost');
    for (const [method, pattern, handle] of routes) {
      const match = pattern.exec(url.pathname);
      if (!match || method !== request.method) continue;
      const body = method === 'POST' ? await bodyOf(request) : null;
      const [status, value] = await handle(home, match, { query: url.searchParams, body });
      if (Buffer.isBuffer(value)) return [status, 'image/png', value];
      return [status, 'application/json', value === undefined ? '' : JSON.stringify(value)];
    }
    const path = normalize(url.pathname === '/' ? '/index.html' : url.pathname);
    try {
      return [200, types[extname(path)] ?? 'application/octet-stream', await readFile(join(pageFolder, path))];
    } catch {
      throw new Refusal(404, 'There is nothing here.');
    }
  }

  const server = createServer(async (request, response) => {
    mock.requests.push(`${request.method} ${request.url}`);
    if (mock.cutOff) return request.socket.destroy();
    if (mock.deny) return response.writeHead(403, headers).end();
    if (request.url === '/api/events') return follow(response);
    try {
      const [status, type, body] = await answer(request);
      response.writeHead(status, { ...headers, 'Content-Type': type }).end(body);
    } catch (error) {
      if (!error.status) console.error(`stand-in: ${request.method} ${request.url}: ${error.message}`);
      response.writeHead(error.status ?? 500, { ...headers, 'Content-Type': 'application/json' })
        .end(JSON.stringify({ error: error.message }));
    }
  });
  await new Promise((resolve) => { server.listen(port, '127.0.0.1', resolve); });

  return Object.assign(mock, {
    address: `http://127.0.0.1:${server.address().port}/`,
    cut() {
      mock.cutOff = true;
      server.closeAllConnections();
    },
    heal() { mock.cutOff = false; },
    async close() {
      for (const stream of streams) stream.end();
      server.closeAllConnections();
      await new Promise((resolve) => { server.close(resolve); });
    },
  });
}

/** Everything that a lively home screen holds. */
const fullHome = [['tasks', 'systemSmall'], ['calendar', 'systemSmall'], ['mood', 'systemMedium'],
  ['habits', 'systemSmall'], ['events', 'systemSmall'], ['combined', 'systemMedium'], ['moods', 'systemLarge'],
  ['quote', 'systemMedium'], ['events', 'accessoryInline'], ['tasks', 'accessoryCircular'],
  ['tasks', 'accessoryRectangular'], ['habits', 'accessoryCircular']];

if (process.argv[1] === new URL(import.meta.url).pathname) {
  const mock = await startMock({ widgets: fullHome, port: Number(process.argv[2] ?? 0), theme: process.argv[3] ?? 'light' });
  console.log(mock.address);
}
