// takumi lays the card out and paints it in one step.

import { Renderer } from '@takumi-rs/core';
import { card, fonts, height, pictures, scale, width } from './card.mjs';
import { run } from './draw.mjs';

const images = Object.entries(pictures).map(([src, data]) => ({ src, data }));

/** @param {import('./card.mjs').Tree} tree */
function nodeOf({ style, text, picture, children }) {
  if (picture) return { type: 'image', src: picture, style };
  if (text) return { type: 'text', text, style };
  return { type: 'container', style, children: children?.map(nodeOf) ?? [] };
}

const renderer = new Renderer();
for (const font of fonts) await renderer.registerFont(font);

await run(() => renderer.render(nodeOf(card),
  { width: width * scale, height: height * scale, devicePixelRatio: scale, images, format: 'png' }));
