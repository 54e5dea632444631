// The picture of the page in the README: a sample of this repository with a row selected.
//
//   node picture.js PROGRAM FILE OUTPUT.png
'use strict';
const {execFileSync} = require('child_process');
const fs = require('fs');
const path = require('path');
const {startBrowser, openFile, checkComplaints, settled, row, folder} = require('./page');

const [program, file, output] = process.argv.slice(2);
const chosen = 'PG42-211';  // the planet gears of both stages

async function main() {
  const browser = await startBrowser();
  const html = path.join(folder, 'picture.html');
  execFileSync(program, ['parts', file, '--columns', 'Part Number,Part Name,Quantity,Mass[g]', '--no-profile', '--quiet', '--output', html], {stdio: 'inherit'});
  const page = await openFile(html, {viewport: {width: 1280, height: 720}});
  await page.fill('.list input[type=search]', 'pg42');  // names in other scripts need fonts that a machine may not have
  await row(page, chosen).click();
  await page.evaluate(() => {
    const {viewer} = partsPage;
    viewer.fit(viewer.everything);
    viewer.camera.zoom(0.74);
    viewer.moved();
  });
  await page.mouse.move(2, 2);
  await page.evaluate(() => document.activeElement.blur());
  await settled(page);
  checkComplaints();
  fs.writeFileSync(output, await page.screenshot());
  await browser.close();
}

main();
