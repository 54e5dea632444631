<!DOCTYPE html>
<!-- Static HTML: no server code. The file is named as the add-in asks for it. -->
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Units Conversion</title>
<link rel="icon" href="data:,">
<style>
  :root { color-scheme: light dark; --text: #1d2733; --ground: #ffffff; --soft: #eef2f6; --line: #6b7785; --accent: #0a5a9c;
          --error: #a1140c; }
  @media (prefers-color-scheme: dark) {
    :root { --text: #e8edf2; --ground: #252c34; --soft: #333c47; --line: #97a3b0; --accent: #8cc8ff; --error: #ffb4ab; }
  }
  * { box-sizing: border-box; }
  body { margin: 0; padding: 8px 10px; font: 13px/1.35 "Segoe UI", "Helvetica Neue", Arial, sans-serif;
         color: var(--text); background: var(--ground); }
  h1 { margin: 0 0 6px; font-size: 15px; }
  label { display: block; margin-top: 5px; font-weight: 600; }
  input, select, button { width: 100%; min-height: 28px; padding: 3px 6px; font: inherit; color: inherit;
                          background: var(--ground); border: 1px solid var(--line); border-radius: 4px; }
  button { margin-top: 8px; background: var(--soft); cursor: pointer; }
  :focus-visible { outline: 2px solid var(--accent); outline-offset: 1px; }
  [aria-invalid=true] { border-color: var(--error); }
  output { display: block; margin-top: 8px; padding: 5px 8px; min-height: 36px; background: var(--soft); border-radius: 4px;
           font-size: 15px; font-weight: 600; overflow-wrap: anywhere; }
  output.error { color: var(--error); font-size: 12px; font-weight: 400; }
  #definitions { margin: 6px 0 0; padding: 0; list-style: none; font-size: 12px; }
  details { margin-top: 6px; font-size: 12px; }
  summary { cursor: pointer; }
  dl { margin: 4px 0 0; }
  dt { font-weight: 600; }
  dd { margin: 0 0 4px; }
</style>
</head>
<body>
<main>
  <h1>Units Conversion</h1>
  <label for="quantity">Quantity</label>
  <select id="quantity"></select>
  <label for="value">Value</label>
  <input id="value" type="text" inputmode="decimal" autocomplete="off" value="1" aria-describedby="result">
  <label for="from">From</label>
  <select id="from"></select>
  <label for="to">To</label>
  <select id="to"></select>
  <button id="swap" type="button">Swap the units</button>
  <output id="result" for="quantity value from to"></output>
  <ul id="definitions"></ul>
  <details>
    <summary>Sources</summary>
    <dl id="sources"></dl>
  </details>
</main>
<script>
'use strict';

// What a factor rests on. Every factor is exact; where a unit is a quotient, it is kept as one.
const sources = {
  SI: ['SI', 'BIPM, The International System of Units, 9th edition (2019), tables 4, 7 and 8'],
  YP: ['Yard and pound, 1959', 'International yard and pound: 1 yd = 0.9144 m, 1 lb = 0.45359237 kg (US Federal Register 59-5442)'],
  NM: ['Nautical mile, 1929', 'First International Extraordinary Hydrographic Conference, Monaco: 1852 m'],
  US: ['US liquid measure', 'NIST Handbook 44, appendix C: 1 US gallon = 231 cubic inches, of 128 fluid ounces'],
  UK: ['Imperial measure', 'Units of Measurement Regulations 1995 (UK): 1 gallon = 4.54609 l, of 160 fluid ounces'],
  GN: ['Standard gravity, 1901', '3rd General Conference on Weights and Measures: 9.80665 m/s\u00b2'],
  AT: ['Standard atmosphere, 1954', '10th General Conference on Weights and Measures: 101 325 Pa; 1 Torr is 1/760 of it'],
  HG: ['Conventional mercury', 'NIST Special Publication 811 (2008), B.8: density 13 595.1 kg/m\u00b3, under standard gravity'],
  CT: ['Metric carat, 1907', '4th General Conference on Weights and Measures: 200 mg'],
  TS: ['Temperature scales', 'NIST Special Publication 811 (2008), B.8: T/K = t/\u00b0C + 273.15 = (t/\u00b0F + 459.67) / 1.8']
};

const foot = 0.3048, inch = 0.0254, pound = 0.45359237, gravity = 9.80665;
const poundForce = 4.4482216152605;  // 0.45359237 x 9.80665, in full

// Symbol, name, factor to the base unit of the quantity, definition, source.
// A temperature has an offset as well: base = (value + offset) x factor.
const quantities = [
  ['Length', 'mm', 'in', [
    ['nm', 'nanometre', 1e-9, '10\u207b\u2079 m', 'SI'],
    ['\u00b5m', 'micrometre', 1e-6, '10\u207b\u2076 m', 'SI'],
    ['mm', 'millimetre', 1e-3, '0.001 m', 'SI'],
    ['cm', 'centimetre', 1e-2, '0.01 m', 'SI'],
    ['dm', 'decimetre', 1e-1, '0.1 m', 'SI'],
    ['m', 'metre', 1, 'SI base unit', 'SI'],
    ['km', 'kilometre', 1e3, '1000 m', 'SI'],
    ['mil', 'mil, thou', 2.54e-5, '0.001 in', 'YP'],
    ['in', 'inch', inch, '25.4 mm', 'YP'],
    ['ft', 'foot', foot, '0.3048 m', 'YP'],
    ['yd', 'yard', 0.9144, '0.9144 m', 'YP'],
    ['mi', 'mile', 1609.344, '1760 yd', 'YP'],
    ['nmi', 'nautical mile', 1852, '1852 m', 'NM']]],
  ['Area', 'mm\u00b2', 'in\u00b2', [
    ['mm\u00b2', 'square millimetre', 1e-6, '10\u207b\u2076 m\u00b2', 'SI'],
    ['cm\u00b2', 'square centimetre', 1e-4, '10\u207b\u2074 m\u00b2', 'SI'],
    ['dm\u00b2', 'square decimetre', 1e-2, '0.01 m\u00b2', 'SI'],
    ['m\u00b2', 'square metre', 1, 'SI unit', 'SI'],
    ['ha', 'hectare', 1e4, '10\u2074 m\u00b2', 'SI'],
    ['km\u00b2', 'square kilometre', 1e6, '10\u2076 m\u00b2', 'SI'],
    ['in\u00b2', 'square inch', 6.4516e-4, '645.16 mm\u00b2', 'YP'],
    ['ft\u00b2', 'square foot', 0.09290304, '144 in\u00b2', 'YP'],
    ['yd\u00b2', 'square yard', 0.83612736, '9 ft\u00b2', 'YP'],
    ['ac', 'acre', 4046.8564224, '4840 yd\u00b2', 'YP'],
    ['mi\u00b2', 'square mile', 2589988.110336, '640 ac', 'YP']]],
  ['Volume', 'l', 'US gal', [
    ['mm\u00b3', 'cubic millimetre', 1e-9, '10\u207b\u2079 m\u00b3', 'SI'],
    ['cm\u00b3', 'cubic centimetre, ml', 1e-6, '10\u207b\u2076 m\u00b3', 'SI'],
    ['l', 'litre, dm\u00b3', 1e-3, '0.001 m\u00b3', 'SI'],
    ['m\u00b3', 'cubic metre', 1, 'SI unit', 'SI'],
    ['in\u00b3', 'cubic inch', 1.6387064e-5, '16.387064 cm\u00b3', 'YP'],
    ['ft\u00b3', 'cubic foot', 0.028316846592, '1728 in\u00b3', 'YP'],
    ['yd\u00b3', 'cubic yard', 0.764554857984, '27 ft\u00b3', 'YP'],
    ['US fl oz', 'US fluid ounce', 2.95735295625e-5, '1/128 US gal', 'US'],
    ['US gal', 'US gallon', 3.785411784e-3, '231 in\u00b3', 'US'],
    ['fl oz', 'imperial fluid ounce', 2.84130625e-5, '1/160 gal', 'UK'],
    ['gal', 'imperial gallon', 4.54609e-3, '4.54609 l', 'UK']]],
  ['Mass', 'kg', 'lb', [
    ['mg', 'milligram', 1e-6, '10\u207b\u2076 kg', 'SI'],
    ['ct', 'metric carat', 2e-4, '200 mg', 'CT'],
    ['g', 'gram', 1e-3, '0.001 kg', 'SI'],
    ['kg', 'kilogram', 1, 'SI base unit', 'SI'],
    ['t', 'tonne', 1e3, '1000 kg', 'SI'],
    ['gr', 'grain', 6.479891e-5, '1/7000 lb', 'YP'],
    ['oz', 'ounce', 0.028349523125, '1/16 lb', 'YP'],
    ['lb', 'pound', pound, '0.45359237 kg', 'YP'],
    ['slug', 'slug', poundForce / foot, '1 lbf s\u00b2/ft', 'GN'],
    ['sh tn', 'short ton (US)', 907.18474, '2000 lb', 'YP'],
    ['l tn', 'long ton (UK)', 1016.0469088, '2240 lb', 'YP']]],
  ['Angle', '\u00b0', 'rad', [
    ['\u2033', 'second of arc', 1 / 3600, '1/3600 \u00b0', 'SI'],
    ['\u2032', 'minute of arc', 1 / 60, '1/60 \u00b0', 'SI'],
    ['\u00b0', 'degree', 1, '\u03c0/180 rad', 'SI'],
    ['gon', 'gon', 0.9, '0.9 \u00b0', 'SI'],
    ['mrad', 'milliradian', 0.18 / Math.PI, '0.001 rad', 'SI'],
    ['rad', 'radian', 180 / Math.PI, '180/\u03c0 \u00b0', 'SI'],
    ['turn', 'turn', 360, '360 \u00b0', 'SI']]],
  ['Force', 'N', 'lbf', [
    ['mN', 'millinewton', 1e-3, '0.001 N', 'SI'],
    ['N', 'newton', 1, '1 kg m/s\u00b2', 'SI'],
    ['kN', 'kilonewton', 1e3, '1000 N', 'SI'],
    ['MN', 'meganewton', 1e6, '10\u2076 N', 'SI'],
    ['dyn', 'dyne', 1e-5, '10\u207b\u2075 N', 'SI'],
    ['kgf', 'kilogram-force, kp', gravity, '9.80665 N', 'GN'],
    ['ozf', 'ounce-force', 0.27801385095378125, '1/16 lbf', 'GN'],
    ['lbf', 'pound-force', poundForce, '0.45359237 kgf', 'GN'],
    ['kip', 'kip', 4448.2216152605, '1000 lbf', 'GN']]],
  ['Pressure', 'MPa', 'psi', [
    ['Pa', 'pascal', 1, '1 N/m\u00b2', 'SI'],
    ['hPa', 'hectopascal, mbar', 1e2, '100 Pa', 'SI'],
    ['kPa', 'kilopascal', 1e3, '1000 Pa', 'SI'],
    ['MPa', 'megapascal, N/mm\u00b2', 1e6, '10\u2076 Pa', 'SI'],
    ['GPa', 'gigapascal', 1e9, '10\u2079 Pa', 'SI'],
    ['bar', 'bar', 1e5, '10\u2075 Pa', 'SI'],
    ['psi', 'pound per square inch', poundForce / 6.4516e-4, '1 lbf/in\u00b2', 'GN'],
    ['ksi', 'kip per square inch', 1000 * poundForce / 6.4516e-4, '1000 psi', 'GN'],
    ['at', 'technical atmosphere', 98066.5, '1 kgf/cm\u00b2', 'GN'],
    ['atm', 'standard atmosphere', 101325, '101 325 Pa', 'AT'],
    ['Torr', 'torr', 101325 / 760, '1/760 atm', 'AT'],
    ['mmHg', 'millimetre of mercury', 133.322387415, '133.322387415 Pa', 'HG']]],
  ['Temperature', '\u00b0C', '\u00b0F', [
    ['K', 'kelvin', 1, 'SI base unit', 'SI', 0],
    ['\u00b0C', 'degree Celsius', 1, 'K \u2212 273.15', 'TS', 273.15],
    ['\u00b0F', 'degree Fahrenheit', 5 / 9, '1.8 \u00b0C + 32', 'TS', 459.67],
    ['\u00b0R', 'degree Rankine', 5 / 9, '1.8 K', 'TS', 0]]]
].map(([name, from, to, units]) => ({
  name, from, to,
  units: units.map(([symbol, title, factor, meaning, source, offset]) =>
      ({symbol, title, factor, meaning, source, offset: offset || 0}))
}));

const byId = id => document.getElementById(id);
const minus = /[\u2212\u2013]/g;

function addElement(parent, kind, text) {
  const element = document.createElement(kind);
  element.textContent = text;
  parent.append(element);
}

/// The number that a text writes with a decimal comma or point, or null. Spaces group digits, and so does
/// the one of comma and point that is not the last of the two.
function parse(text) {
  let plain = text.replace(minus, '-').replace(/[\s\u00a0\u202f']/g, '');
  const grouped = /^([+-]?\d{1,3})((?:\.\d{3})+),(\d+)$/.exec(plain) || /^([+-]?\d{1,3})((?:,\d{3})+)\.(\d+)$/.exec(plain);
  if (grouped) {
    plain = grouped[1] + grouped[2].replace(/[.,]/g, '') + '.' + grouped[3];
  }
  plain = plain.replace(',', '.');
  return /^[+-]?(\d+\.?\d*|\.\d+)(e[+-]?\d{1,3})?$/i.test(plain) ? Number(plain) : null;
}

/// A number in ten digits, without the zeros that say nothing, with the given decimal character.
function format(number, decimal) {
  if (number === 0) {
    return '0';
  }
  const size = Math.abs(number);
  let text = size >= 1e12 || size < 1e-6 ? number.toExponential(9) : number.toPrecision(10);
  if (text.includes('e') && size >= 1e-6 && size < 1e12) {
    text = Number(text).toFixed(0);
  }
  const [digits, exponent] = text.split('e');
  let shown = digits.includes('.') ? digits.replace(/\.?0+$/, '') : digits;
  if (exponent) {
    shown += ' \u00d7 10^' + Number(exponent);
  }
  return shown.replace('-', '\u2212').replace('^-', '^\u2212').replace('.', decimal);
}

function convert(value, from, to) {
  if (from === to) {
    return value;
  }
  const base = from.offset || to.offset
      ? (value + from.offset) * from.factor / to.factor - to.offset
      : value * (from.factor / to.factor);
  // Differences of temperatures leave some 1e-14 where the true result is 0.
  return from.offset || to.offset ? Number(base.toFixed(9)) : base;
}

const quantity = () => quantities[byId('quantity').selectedIndex];
const unit = list => quantity().units[byId(list).selectedIndex];

function remember() {
  try {
    localStorage.setItem('tarnix.units', JSON.stringify([quantity().name, unit('from').symbol, unit('to').symbol]));
  } catch (error) {
    // A browser that stores nothing for this page: it starts with the first quantity each time.
  }
}

function remembered() {
  try {
    return JSON.parse(localStorage.getItem('tarnix.units')) || [];
  } catch (error) {
    return [];
  }
}

function showError(text) {
  byId('value').setAttribute('aria-invalid', text ? 'true' : 'false');
  byId('result').className = text ? 'error' : '';
  if (text) {
    byId('result').textContent = text;
  }
}

/// What keeps a typed value from being converted; empty if nothing does.
function fault(typed, value) {
  if (value === null) {
    return typed.trim() === ''
        ? 'Type a number, such as 12.5 or 12,5.'
        : '\u201c' + typed.trim() + '\u201d is not a number. Write it with digits and a decimal point or comma, such as 12.5 or 12,5.';
  }
  if (!isFinite(value)) {
    return 'The number is too large.';
  }
  // Rounded, because 0 K as -459.67 \u00b0F comes out a hair below.
  if (quantity().name === 'Temperature' && Number((value + unit('from').offset).toFixed(9)) < 0) {
    return 'There is no temperature below absolute zero, 0 K.';
  }
  return '';
}

function update() {
  const typed = byId('value').value;
  const value = parse(typed);
  const decimal = typed.lastIndexOf(',') > typed.lastIndexOf('.') ? ',' : '.';
  const text = fault(typed, value);
  showError(text);
  if (!text) {
    byId('result').textContent = format(value, decimal) + ' ' + unit('from').symbol + ' = ' +
        format(convert(value, unit('from'), unit('to')), decimal) + ' ' + unit('to').symbol;
  }
  const chosen = unit('from') === unit('to') ? [unit('from')] : [unit('from'), unit('to')];
  byId('definitions').textContent = '';
  for (const each of chosen) {
    const text = each.symbol + ': ' + each.meaning + ' (' + sources[each.source][0] + ')';
    addElement(byId('definitions'), 'li', text);
  }
}

function fill(list, entries, selected) {
  list.textContent = '';
  list.append(...entries.map(entry => new Option(entry)));
  list.selectedIndex = Math.max(0, selected);
}

function choose(from, to) {
  const entries = quantity().units.map(each => each.symbol + ', ' + each.title);
  const place = symbol => quantity().units.findIndex(each => each.symbol === symbol);
  fill(byId('from'), entries, place(place(from) < 0 ? quantity().from : from));
  fill(byId('to'), entries, place(place(to) < 0 ? quantity().to : to));
}

function swap() {
  const from = byId('from').selectedIndex;
  byId('from').selectedIndex = byId('to').selectedIndex;
  byId('to').selectedIndex = from;
}

const [lastName, lastFrom, lastTo] = remembered();
fill(byId('quantity'), quantities.map(each => each.name), quantities.findIndex(each => each.name === lastName));
choose(lastFrom, lastTo);
for (const [name, text] of Object.values(sources)) {
  addElement(byId('sources'), 'dt', name);
  addElement(byId('sources'), 'dd', text);
}
byId('quantity').addEventListener('change', () => choose());
byId('swap').addEventListener('click', swap);
for (const id of ['quantity', 'from', 'to', 'swap']) {
  byId(id).addEventListener(id === 'swap' ? 'click' : 'change', () => { update(); remember(); });
}
byId('value').addEventListener('input', update);
update();
</script>
</body>
</html>
