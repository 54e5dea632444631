// Bundles the pages: dist/page.html, and dist/host.html with host.js and host.css.
//
//   node build.mjs [--check]    --check: says whether they are what the sources make
import {createHash} from 'node:crypto';
import {existsSync, readFileSync, writeFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import {dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';

const web = dirname(fileURLToPath(import.meta.url));
const modules = join(web, '../build/web/node_modules');
const largest = 900_000;
const {build} = createRequire(join(modules, 'any.js'))('esbuild');

async function bundle(entry) {
  const {outputFiles} = await build({
    entryPoints: [join(web, entry)], bundle: true, minify: true, write: false, format: 'iife', charset: 'ascii', target: 'es2021',
    legalComments: 'inline', nodePaths: [modules], logLevel: 'warning', absWorkingDir: web, jsx: 'automatic', jsxImportSource: 'preact',
    alias: {'meshopt-reference': join(modules, 'meshoptimizer/meshopt_decoder_reference.js')},
  });
  return outputFiles[0].text.trim();
}

const hash = text => `sha256-${createHash('sha256').update(text).digest('base64')}`;

// Inside a script element this alone would end it, or hide its end.
const inElement = script => script.replaceAll('</script', '<\\/script').replaceAll('<!--', '\\x3C!--');

async function makePage() {
  const [script, style] = [inElement(await bundle('page/main.ts')), await bundle('page/page.css')];
  const parts = {script, style, 'script-hash': hash(script), 'style-hash': hash(style)};
  const page = readFileSync(join(web, 'page/page.html'), 'utf8').replace(/\{\{([\w-]+)\}\}/g, (_, name) => parts[name]);
  for (const place of ['@PARTS@', '@MODEL@']) {
    if (page.split(place).length !== 2) throw new Error(`${place} must be in the page once`);
  }
  return page;
}

// Whose code the script has in it.
const licenses = ['fast-json-patch/LICENSE.txt', 'preact/LICENSE', 'three/LICENSE', 'meshoptimizer/LICENSE.md'];

async function makeHostScript() {
  const texts = licenses.map(name => `${name.split('/')[0]}\n\n${readFileSync(join(modules, name), 'utf8').trim()}`);
  return `/*\nIn this script:\n\n${texts.join('\n\n')}\n*/\n${await bundle('host/main.tsx')}\n`;
}

const made = {
  'page.html': await makePage(),
  'host.html': readFileSync(join(web, 'host/host.html'), 'utf8').replace('main.tsx', 'host.js'),
  'host.js': await makeHostScript(),
  'host.css': `${await bundle('host/host.css')}\n`,
};

for (const [name, text] of Object.entries(made)) {
  const output = join(web, 'dist', name);
  if (Buffer.byteLength(text) > largest) throw new Error(`${name} has ${Buffer.byteLength(text)} bytes, more than ${largest}`);
  if (!process.argv.includes('--check')) {
    writeFileSync(output, text);
    console.log(`dist/${name}: ${Buffer.byteLength(text)} bytes`);
  } else if (!existsSync(output) || readFileSync(output, 'utf8') !== text) {
    console.error(`web/dist/${name} is not what the sources make: run web/build and commit it`);
    process.exitCode = 1;
  }
}
