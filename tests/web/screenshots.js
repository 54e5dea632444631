// The pictures of the browser page in README and guide.
//
//   node screenshots.js PROGRAM FILE.step FOLDER
'use strict';
const path = require('path');
const {checkComplaints, openHost, startBrowser} = require('./page');
const {serveHost} = require('./served');

const [program, file, folder] = process.argv.slice(2);

async function main() {
  const host = await serveHost(program, file);
  const browser = await startBrowser();
  const page = await openHost(host.url, {viewport: {width: 1280, height: 800}});
  const idle = () => page.waitForFunction(() => hostPage.line.isSettled && !hostPage.scene.viewer.scheduled);
  const picture = async name => {
    await idle();
    await page.mouse.move(640, 3);
    await page.evaluate(() => document.activeElement.blur());
    await page.screenshot({path: path.join(folder, `browser-${name}.png`)});
  };
  // The model in the part of the stage that a dialog leaves free.
  const aside = (zoom, x, y) => page.evaluate(([by, right, up]) => {
    const {viewer} = hostPage.scene;
    viewer.home();
    viewer.camera.zoom(by);
    viewer.camera.pan(right, up);
    viewer.moved();
  }, [zoom, x, y]);
  const close = async () => {
    await page.locator('#command-dialog footer .push').last().click();
    await page.waitForSelector('#command-dialog', {state: 'detached'});
  };

  await page.locator('.twisty.closed').first().click();
  await aside(1.12, 0, -0.02);
  await picture('assembly');

  await page.click('[data-command=QM_TX_BOM]');
  await page.waitForSelector('#command-dialog');
  await aside(1.12, 0, -0.02);
  await page.locator('.body .pictured button:has(img[src*="/ColapseAsm/"])').first().click();
  await picture('bom');

  await page.getByRole('tab', {name: 'BOM Configuration'}).click();
  for (const [i, name] of ['Quantity', 'Mass'].entries()) {
    await page.locator('.table [data-row="2"] select').nth(i).selectOption({label: name});
    await idle();
  }
  await page.getByRole('button', {name: 'Save BOM Configuration'}).click();
  await idle();
  await close();
  await page.click('[data-command=QM_TX_BOM]');
  await page.waitForSelector('#command-dialog');
  await page.getByRole('tab', {name: 'Structure', exact: true}).click();
  await page.waitForSelector('#command-dialog .field.DropDown');
  await picture('structure');
  await close();

  await page.click('[data-command=QEMA_EditPropertiesCmd]');
  await page.waitForSelector('#command-dialog');
  await aside(1.1, 0.12, 0);
  await page.waitForSelector('.choose[data-picked]:not([data-picked="0"])');  // what was selected
  await page.getByRole('button', {name: 'Clear the selection'}).click();
  await page.waitForSelector('.choose[data-picked="0"]');
  await page.locator('.node', {hasText: 'PG42-300'}).click();
  await page.waitForSelector('.choose[data-picked="1"]');
  await picture('properties');
  await close();

  await page.evaluate(() => hostPage.line.act('pick', {path: ''}));
  await page.evaluate(() => hostPage.line.act('selectInModel', {paths: []}));
  await aside(1.12, 0.1, -0.02);
  await page.evaluate(() => hostPage.line.act('press', {command: 'QM_TX_unitsConversion'}));
  await page.frameLocator('iframe').locator('#result').waitFor();
  await page.click('.quick [aria-label^=Log]');
  await picture('palette');
  checkComplaints();
  await browser.close();
  await host.stop();
}

main();
