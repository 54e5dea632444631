// A host that plays states which a test makes: docs/protocol.md without a session behind it.
'use strict';
const fs = require('fs');
const http = require('http');
const path = require('path');
const {compare} = require('fast-json-patch');

const root = path.join(__dirname, '../..');
const pages = {'/': ['host.html', 'text/html'], '/host.js': ['host.js', 'text/javascript'], '/host.css': ['host.css', 'text/css']};
// As the program sends it.
const policy = "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data:; connect-src 'self'; frame-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";

/// Serves a page with `state`; `act(action, host)` changes `host.state`, and returns what the answer has beside ok. An Error that
/// it throws refuses the action, with its `status` and `more`, an answer it promises is waited for. Resolves to the host: `actions` are
/// those that came, `openings` the streams of events. Where `refusal` has the status of an error, a stream gets that; `model`
/// may answer the model by itself.
function playHost(state, {act = () => {}, glb = null, files = {}} = {}) {
  const host = {state, actions: [], glb, held: null, openings: 0, refusal: 0, model: null};
  let sent = null, revision = 1, events = null;

  const send = (name, data) => events?.write(`event: ${name}\ndata: ${JSON.stringify(data)}\n\n`);
  const change = () => {
    const patch = sent ? compare(sent, host.state) : [];
    sent = JSON.parse(JSON.stringify(host.state));
    send('change', {revision: ++revision, patch});
  };
  /// Changes the state without an action.
  host.change = how => {
    how(host.state);
    change();
  };

  const answer = (response, status, body) => response.writeHead(status, {'Content-Type': 'application/json'}).end(JSON.stringify(body));
  const routes = {
    'GET /events': (_, response) => {
      ++host.openings;
      if (host.refusal) return answer(response, host.refusal, {error: 'no stream'});
      response.writeHead(200, {'Content-Type': 'text/event-stream', 'Cache-Control': 'no-store'});
      response.write('retry: 100\n\n');  // milliseconds: tests do not wait as long as people may
      events = response;
      response.on('close', () => { if (events === response) events = null; });
      sent = JSON.parse(JSON.stringify(host.state));
      send('state', {version: 1, page: host.openings, revision, state: host.state});
    },
    'POST /actions': async (request, response) => {
      let body = '';
      for await (const piece of request) body += piece;
      const action = JSON.parse(body);
      host.actions.push(action);
      try {
        if (action.page !== host.openings) throw Object.assign(new Error(`no such page: ${action.page}`), {status: 404});
        const more = await act(action, host);
        if (host.held) await host.held;  // a slow program: the action is done, but not answered
        change();
        answer(response, 200, {ok: true, revision, ...more});
      } catch (error) {
        answer(response, error.status ?? 409, {error: error.message, ...error.more});
      }
    },
    'GET /files': (request, response) => {
      const folder = new URL(request.url, 'http://localhost').searchParams.get('folder');
      if (files[folder]) answer(response, 200, {folder, entries: files[folder]});
      else answer(response, 404, {error: `there is no folder ${folder}`});
    },
    'GET /model.glb': (request, response) => host.model ? host.model(request, response) : response.writeHead(host.glb ? 200 : 204, {'Content-Type': 'model/gltf-binary'}).end(host.glb ?? undefined),
  };
  const server = http.createServer((request, response) => {
    const name = new URL(request.url, 'http://localhost').pathname;
    const route = routes[`${request.method} ${name}`];
    if (route) return route(request, response);
    if (pages[name]) {
      const [file, type] = pages[name];
      return response.writeHead(200, {'Content-Type': type, 'Content-Security-Policy': policy}).end(fs.readFileSync(path.join(root, 'web/dist', file)));
    }
    if (name === '/site/page.htm') return response.writeHead(200, {'Content-Type': 'text/html'}).end('<!DOCTYPE html><title>A page</title><p>A page of a palette');
    const picture = path.join(root, 'tarnix', path.normalize(name).replace('/resources/', ''));
    if (name.startsWith('/resources/') && fs.existsSync(picture)) return response.writeHead(200, {'Content-Type': 'image/png'}).end(fs.readFileSync(picture));
    return response.writeHead(404).end();
  });
  /// Sends a patch that belongs to no change.
  host.sendPatch = patch => send('change', {revision: ++revision, patch});
  Object.defineProperty(host, 'hasStream', {get: () => events !== null});
  /// Ends the stream of events; the page opens another one.
  host.drop = () => events.destroy();
  host.close = () => {
    server.closeAllConnections();
    server.close();
  };
  return new Promise(resolve => server.listen(0, '127.0.0.1', () => resolve(Object.assign(host, {url: `http://127.0.0.1:${server.address().port}/`}))));
}

module.exports = {playHost};
