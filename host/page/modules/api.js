/** A request that the server refused or that never reached it (status 0). */
export class ApiError extends Error {
  /** @param {number} status @param {string} message */
  constructor(status, message) {
    super(message);
    this.status = status;
  }
}

/**
 * @param {string} method
 * @param {string} path
 * @param {{body?: unknown, signal?: AbortSignal}} [options]
 */
async function request(method, path, { body, signal } = {}) {
  /** @type {Record<string, string>} */
  const headers = body === undefined ? {} : { 'Content-Type': 'application/json' };
  let response;
  try {
    response = await fetch(path, { method, headers, signal, body: body === undefined ? undefined : JSON.stringify(body) });
  } catch (error) {
    if (signal?.aborted) throw error;
    throw new ApiError(0, 'The host does not answer.');
  }
  const text = await response.text();
  /** @type {any} */
  let answer = null;
  try {
    answer = text ? JSON.parse(text) : null;
  } catch {
    if (response.ok) throw new ApiError(response.status, 'The host gave an answer that cannot be read.');
  }
  if (!response.ok) throw new ApiError(response.status, answer?.error ?? `${response.status} ${response.statusText}`.trim());
  return answer;
}

/** @param {Record<string, string | number>} values */
const query = (values) => new URLSearchParams(Object.entries(values).map(([key, value]) => [key, String(value)]));

/** @typedef {import('./types.js').State} State */

/** What the server offers, one function each. Moments are ISO 8601 texts. */
export const api = {
  /** @returns {Promise<State>} */
  state: () => request('GET', '/api/state'),
  /** @param {string} moment @param {AbortSignal} signal */
  at: (moment, signal) => request('GET', `/api/at?${query({ moment })}`, { signal }),
  why: () => request('GET', '/api/why'),
  /** @param {{kind: string, family: string, place: string}} widget @returns {Promise<{id: number}>} */
  add: (widget) => request('POST', '/api/widgets', { body: widget }),
  /** @param {number} id */
  remove: (id) => request('DELETE', `/api/widgets/${id}`),
  /** @param {number} id @param {number} position */
  move: (id, position) => request('POST', `/api/widgets/${id}/move`, { body: { position } }),
  /** @param {number} id @param {{id: string, date: string | null}} item */
  tap: (id, item) => request('POST', `/api/widgets/${id}/tap`, { body: item }),
  /** @param {number} id @param {number} scale @param {string} picture */
  pictureNow: (id, scale, picture) => `/api/widgets/${id}/picture?${query({ scale, picture })}`,
  /** @param {number} id @param {number} scale @param {string} at */
  pictureAt: (id, scale, at) => `/api/widgets/${id}/picture?${query({ scale, at })}`,
  /** @param {string} kind @param {string} family @param {number} scale */
  preview: (kind, family, scale) => `/api/preview?${query({ kind, family, scale })}`,
};
