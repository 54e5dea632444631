// The program, serving a file to its page, with settings and data of its own.
'use strict';
const fs = require('fs');
const os = require('os');
const path = require('path');
const {spawn} = require('child_process');

/// Resolves when the program has printed its address; `data` has one project, "gears", with a file that no one can read.
async function serveHost(program, file) {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'served-'));
  const [data, home] = [path.join(folder, 'data'), path.join(folder, 'home')];
  fs.mkdirSync(path.join(data, 'gears'), {recursive: true});
  fs.writeFileSync(path.join(data, 'gears/part.sldprt'), 'no design');
  const child = spawn(program, ['serve', file, '--quiet', '--no-cache', '--data', data, '--data-home', home], {stdio: ['ignore', 'pipe', 'pipe']});
  const host = {data, home, running: true, url: ''};
  let errors = '';
  child.stderr.on('data', text => { errors += text; });
  const ended = new Promise(resolve => child.on('exit', (code, signal) => {
    host.running = false;
    resolve(signal ?? code);
  }));
  /// Ends the program as Ctrl-C does; throws what it ended with, if that is no success.
  host.stop = async () => {
    if (host.isStopped) return;
    host.isStopped = true;
    child.kill('SIGTERM');
    const status = await ended;
    fs.rmSync(folder, {recursive: true, force: true});
    if (status !== 0) throw new Error(`the program ended with ${status}: ${errors}`);
  };
  let printed = '';
  host.url = await new Promise((resolve, reject) => {
    child.stdout.on('data', text => {
      printed += text;
      const [address] = /http:\S+/.exec(printed) ?? [];
      if (address) resolve(address);
    });
    void ended.then(status => reject(new Error(`the program ended with ${status}: ${errors}`)));
  });
  return host;
}

module.exports = {serveHost};
