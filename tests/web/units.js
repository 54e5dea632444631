// What needs no browser: the modules that pages are made of, bundled for Node.
'use strict';
const path = require('path');
const {buildSync} = require('esbuild');

const root = path.join(__dirname, '../..');
const modules = path.join(root, 'build/web/node_modules');

/// The exports of a module of web/.
function load(name) {
  const {outputFiles} = buildSync({
    entryPoints: [path.join(root, 'web', name)], bundle: true, write: false, format: 'cjs', platform: 'node', nodePaths: [modules],
    alias: {'meshopt-reference': path.join(modules, 'meshoptimizer/meshopt_decoder_reference.js')}});
  const module = {exports: {}};
  new Function('module', 'exports', 'require', outputFiles[0].text)(module, module.exports, require);
  return module.exports;
}

module.exports = {load};
