// Makes both guides: Markdown and pictures into one HTML page each, and that into a PDF with Chromium.
//
//   node build.js VERSION FOLDER
'use strict';
const {execFileSync} = require('child_process');
const fs = require('fs');
const path = require('path');
const {chromium} = require('playwright-core');
const {Marked} = require('marked');

const [version, folder] = process.argv.slice(2);
const guides = [
  {source: 'users-guide.md', pdf: 'Tarnix_UsersGuide.pdf', language: 'en', title: 'Tarnix User’s Guide', heading: 'Tarnix',
   subtitle: 'User’s Guide', edition: `Version ${version}`, contents: 'Contents',
   legal: 'Autodesk and Fusion 360 are trademarks of Autodesk, Inc., Excel and Windows of the Microsoft group of companies. ' +
          'Neither is affiliated with this project.'},
  {source: 'uzivatelska-prirucka.md', pdf: 'Tarnix_UzivatelskaPrirucka.pdf', language: 'cs', title: 'Tarnix – uživatelská příručka',
   heading: 'Tarnix', subtitle: 'Uživatelská příručka', edition: `Verze ${version}`, contents: 'Obsah',
   legal: 'Autodesk a Fusion 360 jsou ochranné známky společnosti Autodesk, Inc., Excel a Windows skupiny společností Microsoft. ' +
          'Žádná z nich s tímto projektem nesouvisí.'}
];

const rule = '<div class="rule"></div>';

/// The anchor of a heading, as GitHub makes it.
const anchor = text => text.toLowerCase().replace(/[^\p{L}\p{N}_ -]/gu, '').replace(/ /g, '-');

/// The fonts as data: the page has no other files. Only those that are asked for get into the PDF.
function fontFaces() {
  const files = (family, name, weight, slant) => ['latin', 'latin-ext'].map(subset => {
    const file = require.resolve(`@fontsource/${name}/package.json`).replace(/package\.json$/, `files/${name}-${subset}-${weight}-${slant}.woff2`);
    const ranges = {'latin': 'U+0000-00FF,U+0131,U+02C6,U+02DA,U+02DC,U+2000-206F,U+20AC,U+2122,U+2191,U+2193,U+2212,U+2215',
                    'latin-ext': 'U+0100-02BA,U+1E00-1E9F'};
    return `@font-face { font-family: '${family}'; font-weight: ${weight}; font-style: ${slant}; unicode-range: ${ranges[subset]};
             src: url(data:font/woff2;base64,${fs.readFileSync(file, 'base64')}) }`;
  });
  return [files('Source Sans 3', 'source-sans-3', 400, 'normal'), files('Source Sans 3', 'source-sans-3', 400, 'italic'),
          files('Source Sans 3', 'source-sans-3', 600, 'normal'), files('Source Sans 3', 'source-sans-3', 700, 'normal'),
          files('Source Code Pro', 'source-code-pro', 400, 'normal')].flat().join('\n');
}

/// A picture with its caption: a drawing becomes part of the page, so that it has the page's fonts.
function figure(href, caption) {
  const file = path.join(__dirname, href);
  const image = href.endsWith('.svg')
      ? fs.readFileSync(file, 'utf8').replace(/<svg ([^>]*)width="(\d+)" height="\d+"/,
                                              (_, start, width) => `<svg role="img" aria-label="${caption}" ${start}width="${width * 0.85}"`)
      : `<img width="${href.includes('units') ? 220 : 300}" alt="${caption}" src="data:image/png;base64,${fs.readFileSync(file, 'base64')}">`;
  return `<figure>${image}<figcaption>${caption}</figcaption></figure>`;
}

/// Text to HTML, and the headings on the way.
function render(guide) {
  const headings = [];
  const renderer = {
    heading({tokens, depth, text}) {
      headings.push({id: anchor(text), depth, text: this.parser.parseInline(tokens)});
      const [before, after] = depth === 2 ? ['</section><section>', rule] : ['', ''];
      return `${before}<h${depth} id="${anchor(text)}">${this.parser.parseInline(tokens)}</h${depth}>${after}\n`;
    },
    paragraph({tokens}) {
      const [first] = tokens;
      return tokens.length === 1 && first.type === 'image' ? figure(first.href, first.text)
                                                           : `<p>${this.parser.parseInline(tokens)}</p>\n`;
    }
  };
  const body = new Marked({renderer}).parse(fs.readFileSync(path.join(__dirname, guide.source), 'utf8'));
  return {body, headings};
}

function html(guide, {body, headings}, pages) {
  const entries = headings.map(({id, depth, text}) =>
      `<li class="${depth === 2 ? 'chapter' : 'section'}"><a href="#${id}">${text}</a><span class="dots"></span>` +
      `<span>${pages.get(id) || '00'}</span></li>`).join('\n');
  return `<!DOCTYPE html><html lang="${guide.language}"><head><meta charset="utf-8"><title>${guide.title}</title><style>${fontFaces()}
${fs.readFileSync(path.join(__dirname, 'guides.css'), 'utf8')}</style></head><body>
<header><h1>${guide.heading}</h1><p class="subtitle">${guide.subtitle}</p><p class="edition">${guide.edition}</p>
<p class="legal">${guide.legal}</p></header>
<nav><h2 id="contents">${guide.contents}</h2>${rule}<ol>${entries}</ol></nav>
<main><section hidden>${body}</section></main></body></html>`;
}

async function print(browser, content, file) {
  const page = await browser.newPage();
  await page.setContent(content);
  await page.evaluate(() => document.fonts.ready);
  const pdf = await page.pdf({preferCSSPageSize: true, printBackground: true, tagged: true, outline: true});
  await page.close();
  // The moment of printing would make every PDF another one.
  const timeless = pdf.toString('latin1').replace(/\/(CreationDate|ModDate) \(D:\d{14}/g, '/$1 (D:20260101000000');
  fs.writeFileSync(file, timeless, 'latin1');
}

/// The page of each anchor, as the printed file has it.
function pagesOf(file) {
  const listed = execFileSync('pdfinfo', ['-dests', file], {encoding: 'utf8'});
  return new Map([...listed.matchAll(/^ *(\d+) .*"(.*)"$/gm)].map(([, page, name]) => [decodeURIComponent(name), page]));
}

async function main() {
  const browser = await chromium.launch({executablePath: '/usr/bin/chromium', args: process.getuid() === 0 ? ['--no-sandbox'] : []});
  for (const guide of guides) {
    const file = path.join(folder, guide.pdf);
    const rendered = render(guide);
    await print(browser, html(guide, rendered, new Map()), file);
    await print(browser, html(guide, rendered, pagesOf(file)), file);
  }
  await browser.close();
}

main();
