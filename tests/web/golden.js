// Golden pictures, with a tolerance: text is drawn differently from one version of a font to another.
'use strict';
const assert = require('assert');
const fs = require('fs');
const path = require('path');

const folder = path.join(__dirname, 'golden');
const outputs = path.join(__dirname, '../../build/web/pictures');
const most = 0.02;   // of all pixels
const far = 60;      // of 255, in one colour

/// Compares a screenshot with golden/`name`.png; UPDATE_GOLDEN=1 replaces that.
async function compare(page, name, picture) {
  fs.mkdirSync(outputs, {recursive: true});
  fs.writeFileSync(path.join(outputs, `${name}.png`), picture);
  const golden = path.join(folder, `${name}.png`);
  if (process.env.UPDATE_GOLDEN) fs.writeFileSync(golden, picture);
  const share = await page.evaluate(difference, [picture, fs.readFileSync(golden)].map(each => `data:image/png;base64,${each.toString('base64')}`).concat(far));
  assert.ok(share <= most, `${name}.png differs in ${(share * 100).toFixed(2)} % of its pixels: see ${path.join(outputs, `${name}.png`)}`);
}

async function difference([one, other, far]) {
  const read = async address => {
    const image = new Image();
    image.src = address;
    await image.decode();
    const context = new OffscreenCanvas(image.width, image.height).getContext('2d');
    context.drawImage(image, 0, 0);
    return context.getImageData(0, 0, image.width, image.height);
  };
  const [a, b] = [await read(one), await read(other)];
  if (a.width !== b.width || a.height !== b.height) return 1;
  let different = 0;
  for (let i = 0; i < a.data.length; i += 4) {
    if ([0, 1, 2].some(k => Math.abs(a.data[i + k] - b.data[i + k]) > far)) ++different;
  }
  return different / (a.data.length / 4);
}

module.exports = {compare};
