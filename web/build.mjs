// Bundles the page into dist/page.html.
//
//   node build.mjs [--check]    --check: says whether dist/page.html is what the sources make
import {createHash} from 'node:crypto';
import {existsSync, readFileSync, writeFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import {dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';

const web = dirname(fileURLToPath(import.meta.url));
const modules = join(web, '../build/web/node_modules');
const output = join(web, 'dist/page.html');
const largest = 900_000;
const {build} = createRequire(join(modules, 'any.js'))('esbuild');

async function bundle(entry) {
  const {outputFiles} = await build({
    entryPoints: [join(web, entry)], bundle: true, minify: true, write: false, format: 'iife', charset: 'ascii', target: 'es2021',
    legalComments: 'inline', nodePaths: [modules], logLevel: 'warning', absWorkingDir: web,
    alias: {'meshopt-reference': join(modules, 'meshoptimizer/meshopt_decoder_reference.js')},
  });
  // Inside a script element this alone would end it, or hide its end.
  return outputFiles[0].text.replaceAll('</script', '<\\/script').replaceAll('<!--', '\\x3C!--').trim();
}

const hash = text => `sha256-${createHash('sha256').update(text).digest('base64')}`;

async function makePage() {
  const [script, style] = [await bundle('page/main.ts'), await bundle('page/page.css')];
  const parts = {script, style, 'script-hash': hash(script), 'style-hash': hash(style)};
  const page = readFileSync(join(web, 'page/page.html'), 'utf8').replace(/\{\{([\w-]+)\}\}/g, (_, name) => parts[name]);
  for (const place of ['@PARTS@', '@MODEL@']) {
    if (page.split(place).length !== 2) throw new Error(`${place} must be in the page once`);
  }
  if (Buffer.byteLength(page) > largest) throw new Error(`the page has ${Buffer.byteLength(page)} bytes, more than ${largest}`);
  return page;
}

const page = await makePage();
if (process.argv.includes('--check')) {
  if (!existsSync(output) || readFileSync(output, 'utf8') !== page) {
    console.error('web/dist/page.html is not what the sources make: run web/build and commit it');
    process.exit(1);
  }
} else {
  writeFileSync(output, page);
  console.log(`dist/page.html: ${Buffer.byteLength(page)} bytes`);
}
