// Every link and picture of the documents and of the web pages leads somewhere. Other sites are not asked: of their
// addresses the form is checked.
//
//   node check_links.js FOLDER
'use strict';
const fs = require('fs');
const path = require('path');

const root = path.resolve(process.argv[2]);
const left = new Set(['.git', 'build', 'node_modules', 'planted']);
let checked = 0, faults = 0;

/// All documents and pages below a folder.
function documents(folder) {
  return fs.readdirSync(folder, {withFileTypes: true}).flatMap(entry => {
    const file = path.join(folder, entry.name);
    if (entry.isDirectory()) {
      return left.has(entry.name) ? [] : documents(file);
    }
    return /\.(md|htm|html|asp)$/.test(entry.name) ? [file] : [];
  });
}

/// Markdown without its code, in which nothing is a link.
const withoutCode = text => text.replace(/^```[^]*?^```/gm, '').replace(/^(\n|^)( {4}.*\n)+/gm, '').replace(/`[^`\n]*`/g, '');

/// The anchor of a heading, as GitHub makes it.
const anchor = heading => heading.toLowerCase().replace(/[^\p{L}\p{N}_ -]/gu, '').trim().replace(/ /g, '-');
const anchors = file => new Set([...fs.readFileSync(file, 'utf8').matchAll(/^#+ +(.*)$/gm)].map(([, heading]) => anchor(heading)));

/// Links as [target, text or null where a link needs none].
function links(file) {
  const text = fs.readFileSync(file, 'utf8');
  if (!file.endsWith('.md')) {
    return [...text.matchAll(/\b(?:href|src)="([^"]*)"/g)].map(([, target]) => [target, null]);
  }
  return [...withoutCode(text).matchAll(/\[([^\]]*)\]\(([^)\s]+)\)/g)].map(([, label, target]) => [target, label]);
}

/// Exists under exactly this name, as it has to on systems that tell capital letters from small ones.
function exists(file) {
  return fs.existsSync(file) && (file === root || fs.readdirSync(path.dirname(file)).includes(path.basename(file)));
}

/// What is wrong with a link; empty if nothing is.
function faultOf(file, target, label) {
  if (label !== null && label.trim() === '') {
    return 'has no text';
  }
  if (/^[a-z]+:/i.test(target)) {
    return /^(https:\/\/[\w-]+(\.[\w-]+)+(\/\S*)?|data:,)$/.test(target) && !/^https:\/\/[^/]*\.example(\/|$)/.test(target)
        ? '' : 'is no https address of a real site';
  }
  const [name, fragment] = target.split('#').map(decodeURIComponent);
  const linked = name === '' ? file : path.resolve(path.dirname(file), name);
  if (path.isAbsolute(name) || path.relative(root, linked).startsWith('..')) {
    return 'leaves the repository';
  }
  if (!exists(linked)) {
    return 'is not there';
  }
  return fragment && linked.endsWith('.md') && !anchors(linked).has(fragment) ? 'names no heading' : '';
}

for (const file of documents(root)) {
  for (const [target, label] of links(file)) {
    checked++;
    const fault = faultOf(file, target, label);
    if (fault) {
      faults++;
      console.log(`${path.relative(root, file)}: '${target}' ${fault}`);
    }
  }
}
console.log(`${faults} faults in ${checked} links`);
process.exitCode = faults > 0 || checked === 0 ? 1 : 0;
