// satori lays the card out and writes an SVG file of it, resvg paints that.

import satori from 'satori';
import { Resvg } from '@resvg/resvg-js';
import { card, fonts, height, pictures, scale, width } from './card.mjs';
import { run } from './draw.mjs';

const addresses = Object.fromEntries(
  Object.entries(pictures).map(([name, bytes]) => [name, `data:image/png;base64,${bytes.toString('base64')}`]));

/** @param {import('./card.mjs').Tree} tree */
function elementOf({ style, text, picture, children }) {
  if (picture) return { type: 'img', props: { src: addresses[picture], width: style.width, height: style.height, style } };
  return { type: 'div', props: { style, children: text ?? children?.map(elementOf) } };
}

await run(async () => {
  const svg = await satori(elementOf(card), { width, height, fonts });
  return new Resvg(svg, { fitTo: { mode: 'zoom', value: scale }, font: { loadSystemFonts: false } }).render().asPng();
});
