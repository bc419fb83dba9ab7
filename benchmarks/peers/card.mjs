import { readFileSync } from 'node:fs';

/**
 * The widget "tasks" in its medium size, as a tree that each card renderer translates into its own: what `mirune render
 * tasks systemMedium` draws of the sample container, text for text and place for place.
 * @typedef {{style: object, text?: string, picture?: string, children?: Tree[]}} Tree
 */

export const width = 338;
export const height = 158;
export const scale = 2;

/** The folder of the widgets' pictures. */
const images = process.env.MIRUNE_IMAGES;

/** Pictures by the name under which the tree has them. */
export const pictures = {
  paper: readFileSync(`${images}/paper1new_widget@3x.png`),
  badge: readFileSync(`${images}/Asset 43aa@3x.png`),
};

const inter = '/usr/share/fonts/opentype/inter';
export const fonts = [
  { name: 'Inter', weight: 300, style: 'normal', data: readFileSync(`${inter}/Inter-Light.otf`) },
  { name: 'Inter', weight: 500, style: 'normal', data: readFileSync(`${inter}/Inter-Medium.otf`) },
  { name: 'Kaushan Script', weight: 400, style: 'normal',
    data: readFileSync('/usr/share/fonts/opentype/kaushanscript/KaushanScript-Regular.otf') },
];

const light = { fontFamily: 'Inter', fontWeight: 300 };
const text = (words, style) => ({ text: words, style: { color: '#000000', lineHeight: 1.2, whiteSpace: 'nowrap', ...style } });
const row = (children, style) => ({ style: { display: 'flex', flexDirection: 'row', alignItems: 'center', ...style }, children });

const checkBox = { style: { display: 'flex', boxSizing: 'border-box', width: 16, height: 16, border: '1px solid rgba(0, 0, 0, 0.7)', borderRadius: 4 } };

const item = (title) => row([checkBox, text(title, { ...light, fontSize: 14, letterSpacing: -0.15 })], { gap: 6, height: 17, marginBottom: 10 });

const badge = {
  style: { display: 'flex', position: 'relative', width: 23, height: 22, alignItems: 'center', justifyContent: 'center' },
  children: [
    { picture: 'badge', style: { position: 'absolute', left: 0, top: 0, width: 23, height: 22 } },
    text('21', { fontFamily: 'Kaushan Script', fontSize: 13.5, opacity: 0.6 }),
  ],
};

/** @type {Tree} */
export const card = {
  style: { display: 'flex', position: 'relative', width, height, borderRadius: 22, overflow: 'hidden' },
  children: [
    { picture: 'paper', style: { position: 'absolute', left: 0, top: 0, width, height, objectFit: 'cover' } },
    {
      style: { display: 'flex', flexDirection: 'column', position: 'relative', width, height, padding: '12px 16px' },
      children: [
        row([text('TASKS', { fontFamily: 'Inter', fontWeight: 500, fontSize: 13, opacity: 0.9 }), badge],
          { justifyContent: 'space-between', height: 22, marginBottom: 8 }),
        ...['Water the ferns', 'Call grandma', 'Reply to Mira about the summer house'].map(item),
        text('+4 more', { ...light, fontSize: 10 }),
      ],
    },
  ],
};
