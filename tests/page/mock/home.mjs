import { createHash } from 'node:crypto';
import { catalogue } from './catalogue.mjs';

/** What a request is refused with. */
export class Refusal extends Error {
  constructor(status, message) {
    super(message);
    this.status = status;
  }
}

const slots = { accessoryCircular: 1, accessoryRectangular: 2, accessoryInline: 0 };
const withoutMilliseconds = (milliseconds) => new Date(milliseconds).toISOString().replace(/\.\d+Z/, 'Z');

/** A home screen in memory that tests can bring into any state. */
export class Home {
  version = 1;
  widgets = [];
  observers = new Set();
  failures = new Map();
  undrawn = new Set();
  files = [];
  extensionRuns = true;
  tapFailure = null;
  tapGate = Promise.resolve();
  #nextId = 1;
  #started = Date.now();

  constructor({ pictures, ...settings }) {
    this.pictures = pictures;
    this.settings = { now: '2026-11-21T09:00:00Z', speed: 1, timeZone: 'Europe/Berlin', locale: 'en_GB', direction: 'ltr',
      screen: { width: 390, height: 844 }, theme: 'light', plannerURL: 'https://planner.example', words: {}, ...settings };
  }

  now() {
    return withoutMilliseconds(Date.parse(this.settings.now) + (Date.now() - this.#started) * this.settings.speed);
  }

  changed() {
    this.version++;
    for (const observer of this.observers) observer(this.version);
  }

  place(place) {
    return this.widgets.filter((widget) => widget.place === place);
  }

  widget(id) {
    const found = this.widgets.find((widget) => widget.id === id);
    if (!found) throw new Refusal(404, 'There is no such widget.');
    return found;
  }

  add(shortNameOrKind, family, place = family.startsWith('accessory') ? 'lock' : 'home') {
    const kind = catalogue.find((one) => [one.kind, one.shortName].includes(shortNameOrKind));
    const size = kind?.families.find((one) => one.family === family);
    if (!size || (place === 'lock') !== family.startsWith('accessory')) throw new Refusal(400, 'There is no such widget.');
    const lock = this.place('lock');
    const used = lock.reduce((sum, widget) => sum + slots[widget.family], 0);
    if (family === 'accessoryInline' && lock.some((widget) => widget.family === family)) {
      throw new Refusal(409, 'There is a widget above the clock already.');
    }
    if (place === 'lock' && used + slots[family] > 4) throw new Refusal(409, 'There is no room below the clock.');
    const { kind: identifier, shortName, displayName } = kind;
    const widget = { id: this.#nextId++, kind: identifier, shortName, displayName, place, ...size };
    this.widgets.push(widget);
    this.changed();
    return widget.id;
  }

  remove(id) {
    this.widgets.splice(this.widgets.indexOf(this.widget(id)), 1);
    this.changed();
  }

  move(id, position) {
    const widget = this.widget(id);
    const row = this.place(widget.place).filter((one) => one !== widget);
    row.splice(position, 0, widget);
    this.widgets = [...this.widgets.filter((one) => one.place !== widget.place), ...row];
    this.changed();
  }

  async tap(id, { id: item, date }) {
    this.widget(id);
    await this.tapGate;
    if (this.tapFailure) throw new Refusal(502, this.tapFailure);
    await this.pictures.tap(item, date);
    this.changed();
  }

  async looks(widget, moment) {
    const { url, meaning } = await this.pictures.meaning(widget, moment);
    const { theme, direction } = this.settings;
    const hash = createHash('sha1').update(JSON.stringify([widget.kind, widget.family, theme, direction, meaning])).digest('hex');
    return { url, meaning, picture: this.undrawn.has(widget.id) ? null : hash.slice(0, 12) };
  }

  /** The moment as what is drawn goes by it: the last full minute. */
  minute(moment) {
    return `${moment.slice(0, 16)}:00Z`;
  }

  async changes() {
    const all = await this.pictures.changes([...new Set(this.widgets.map((widget) => widget.shortName))]);
    return [...new Set(all)].filter((change) => change > this.now()).sort().slice(0, 500);
  }

  async state() {
    const now = this.now();
    const widgets = await Promise.all(this.widgets.map(async (widget) => ({
      ...widget,
      position: this.place(widget.place).indexOf(widget),
      ...await this.looks(widget, this.minute(now)),
      entryDate: '2026-11-20T23:00:00Z', drawnAt: this.settings.now,
      failure: this.failures.get(widget.id) ?? null,
    })));
    return { version: this.version, ...this.settings, now, catalogue, widgets, changes: await this.changes() };
  }

  async at(moment) {
    return { moment, widgets: await Promise.all(this.widgets.map(async (widget) =>
      ({ id: widget.id, ...await this.looks(widget, this.minute(moment)) }))) };
  }

  async why() {
    const [next = null] = await this.changes();
    return {
      widgets: this.widgets.map(({ id }) => ({ id, entryDate: '2026-11-20T23:00:00Z', nextChange: next,
        nextRequest: next && { at: next, reason: 'the timeline ends' }, lastRequest: this.settings.now,
        lastFailure: this.failures.has(id) ? { message: this.failures.get(id).message, at: this.settings.now } : null })),
      files: this.files,
      extension: { running: this.extensionRuns },
    };
  }
}
