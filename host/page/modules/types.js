/**
 * The records that travel between server and page. A moment is an ISO 8601 text in UTC, a frame [x, y, width, height]
 * in points from the widget's top left corner.
 *
 * @typedef {[number, number, number, number]} Frame
 * @typedef {{role: 'text' | 'checkbox' | 'link' | 'gauge' | 'image', label: string, frame: Frame, checked?: boolean,
 *   id?: string, date?: string | null, url?: string, value?: number, total?: number}} Part
 * @typedef {{id: number, kind: string, shortName: string, displayName: string, family: string, place: 'home' | 'lock',
 *   position: number, width: number, height: number, picture: string | null, entryDate: string | null,
 *   drawnAt: string | null, url: string | null, meaning: Part[],
 *   failure: null | {message: string, since: string}, at?: string}} Widget
 * @typedef {{family: string, width: number, height: number}} Size
 * @typedef {{kind: string, shortName: string, displayName: string, description: string, families: Size[]}} Kind
 * @typedef {{version: number, now: string, speed: number, timeZone: string, locale: string, direction: 'ltr' | 'rtl',
 *   screen: {width: number, height: number}, theme: 'light' | 'dark', plannerURL: string,
 *   words: Record<string, string>, catalogue: Kind[], widgets: Widget[], changes: string[]}} State
 * @typedef {{id: number, picture: string | null, url?: string | null, meaning: Part[]}} WidgetAt
 */
export {};
