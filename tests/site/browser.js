// A web server for a folder, and a headless Chromium that opens its pages.
'use strict';
const fs = require('fs');
const http = require('http');
const path = require('path');
const {chromium} = require('playwright-core');
const axe = require('axe-core');

// As docs/building-for-fusion.md asks a real server to do.
const types = {'.asp': 'text/html; charset=utf-8', '.htm': 'text/html; charset=utf-8'};

/// Serves the files below `folder` on a free port of this machine; resolves to the server.
function serve(folder) {
  const server = http.createServer((request, response) => {
    const name = path.join(folder, path.normalize(new URL(request.url, 'http://localhost').pathname));
    const type = types[path.extname(name)];
    if (!type || !fs.existsSync(name)) {
      response.writeHead(404).end();
      return;
    }
    response.writeHead(200, {'Content-Type': type}).end(fs.readFileSync(name));
  });
  return new Promise(resolve => server.listen(0, '127.0.0.1', () => resolve(server)));
}

/// Starts the browser; as root it runs without its sandbox, which root may not use.
function start(graphics = ['--disable-gpu']) {
  const args = [...graphics, ...process.getuid() === 0 ? ['--no-sandbox'] : []];
  return chromium.launch({executablePath: '/usr/bin/chromium', args});
}

/// The violations that axe-core finds on the page, or in what the selector finds there, one a line; empty if none.
async function violations(page, selector = 'html') {
  if (!await page.evaluate(() => 'axe' in window)) await page.evaluate(axe.source);
  const result = await page.evaluate(where => axe.run(where, {resultTypes: ['violations']}), selector);
  return result.violations.map(each => `${each.id}: ${each.nodes.map(node => node.target).join(', ')}`).join('\n');
}

module.exports = {serve, start, violations};
