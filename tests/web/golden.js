// Golden pictures, with a tolerance: text is drawn differently from one version of a font to another.
'use strict';
const assert = require('assert');
const fs = require('fs');
const path = require('path');

const folder = path.join(__dirname, 'golden');
const outputs = path.join(__dirname, '../../build/web/pictures');
const most = 0.003;      // of all pixels
const mostOfTile = 0.4;  // of the pixels of a tile of the model's picture: a small part that is missing is most of one
const tile = 12;
const far = 60;          // of 255, in one colour

/// Compares a screenshot with golden/`name`.png; UPDATE_GOLDEN=1 replaces that.
async function compare(page, name, picture, output = name) {
  fs.mkdirSync(outputs, {recursive: true});
  fs.writeFileSync(path.join(outputs, `${output}.png`), picture);
  const golden = path.join(folder, `${name}.png`);
  if (process.env.UPDATE_GOLDEN) fs.writeFileSync(golden, picture);
  const [one, other] = [picture, fs.readFileSync(golden)].map(each => `data:image/png;base64,${each.toString('base64')}`);
  const {x, y, width, height} = await page.locator('canvas').boundingBox();
  const {whole, worst} = await page.evaluate(difference, {one, other, far, tile, model: {x, y, width, height}});
  const percent = share => `${(share * 100).toFixed(2)} %`;
  const where = `see ${path.join(outputs, `${output}.png`)}`;
  assert.ok(whole <= most, `${name}.png differs in ${percent(whole)} of its pixels: ${where}`);
  assert.ok(worst.share <= mostOfTile, `${name}.png differs in ${percent(worst.share)} of the pixels about ${worst.x}, ${worst.y}: ${where}`);
}

/// The share of pixels that differ, of all and of the worst tile of the model's picture.
async function difference({one, other, far, tile, model}) {
  const read = async address => {
    const image = new Image();
    image.src = address;
    await image.decode();
    const context = new OffscreenCanvas(image.width, image.height).getContext('2d');
    context.drawImage(image, 0, 0);
    return context.getImageData(0, 0, image.width, image.height);
  };
  const [a, b] = [await read(one), await read(other)];
  if (a.width !== b.width || a.height !== b.height) return {whole: 1, worst: {share: 1, x: 0, y: 0}};
  const differs = i => [0, 1, 2].some(k => Math.abs(a.data[i + k] - b.data[i + k]) > far);
  const count = (left, top, width, height) => {
    let different = 0;
    for (let y = top; y < top + height; ++y) for (let x = left; x < left + width; ++x) different += differs((y * a.width + x) * 4) ? 1 : 0;
    return different / (width * height);
  };
  let worst = {share: 0, x: 0, y: 0};
  for (let y = Math.ceil(model.y); y + tile <= model.y + model.height; y += tile / 2) {
    for (let x = Math.ceil(model.x); x + tile <= model.x + model.width; x += tile / 2) {
      const share = count(x, y, tile, tile);
      if (share > worst.share) worst = {share, x, y};
    }
  }
  return {whole: count(0, 0, a.width, a.height), worst};
}

module.exports = {compare};
