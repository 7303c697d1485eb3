// Checks pages of results with an HTML checker and in Chromium. See the script `check`.
'use strict';

const {execFileSync, spawnSync} = require('node:child_process');
const fs = require('node:fs');
const os = require('node:os');
const path = require('node:path');
const puppeteer = require('puppeteer-core');

const [cli, pictures, checker] = process.argv.slice(2);
const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'golf-pages-'));
const install = path.join(folder, 'install');
let failures = 0;

function fail(text) {
  console.error(`FAILED: ${text}`);
  ++failures;
}

// Changes records of a file of the install. `change` gets each record as a buffer.
function changeRecords(file, length, change) {
  const name = path.join(install, 'qbdata', file);
  const bytes = fs.readFileSync(name);
  for (let at = 0; at + length <= bytes.length; at += length) {
    change(bytes.subarray(at, at + length), at / length);
  }
  fs.writeFileSync(name, bytes);
}

// Gives golfers and teams long and hostile names.
function renameAll() {
  const names = ['<script>alert(1)</script>', 'Featherstonehaugh', '&amp;"\'', '\u0001\u0081'];
  changeRecords('QBGOLFER.Q9D', 1867, (golfer, i) => {
    golfer.fill(' ', 27, 43).write(names[i % names.length].slice(0, 16), 27, 'latin1');
  });
  changeRecords('X0001.Q9T', 1339, (team, i) => {
    team.fill(' ', 0, 40).write(`${names[i % names.length]} and their many friends`.slice(0, 40), 0,
                                'latin1');
  });
}

// Makes many entries out of the 12 of the demonstration.
function enterTimes(times) {
  const name = path.join(install, 'qbdata', 'X0001.Q9G');
  const few = fs.readFileSync(name).subarray(0, 12 * 3052);
  fs.writeFileSync(name, Buffer.concat(Array(times).fill(few)));
}

function writePage(words, name) {
  const page = path.join(folder, `${name}.html`);
  execFileSync(cli, ['--install', install, 'results', ...words, '--tournament', '1', '--round', '2',
                     '--html', page]);
  return page;
}

function checkHtml(page) {
  const ended = spawnSync('java', ['-jar', checker, '--format', 'text', page], {encoding: 'utf8'});
  if (ended.status !== 0) fail(`${page}: ${ended.stderr}`);
}

// Runs in the page. Returns what a reader cannot see or read.
function findProblems() {
  const problems = [];
  const width = document.documentElement.clientWidth;
  if (document.documentElement.scrollWidth > width) problems.push('the page scrolls sideways');
  for (const cell of document.querySelectorAll('td,th')) {
    const size = parseFloat(getComputedStyle(cell).fontSize);
    if (size < 10) problems.push(`a text of ${size} pixels: ${cell.textContent}`);
    const isCut = cell.scrollWidth > cell.clientWidth + 1 && !cell.closest('.wide');
    if (cell.offsetWidth > 0 && isCut) problems.push(`a text is cut: ${cell.textContent}`);
  }
  for (const picture of document.querySelectorAll('figure svg')) {
    const frame = picture.getBoundingClientRect();
    let last = null;
    for (const text of picture.querySelectorAll('text')) {
      const box = text.getBoundingClientRect();
      const isInside = box.left >= frame.left - 1 && box.right <= frame.right + 1 &&
                       box.top >= frame.top - 1 && box.bottom <= frame.bottom + 1;
      if (!isInside) problems.push(`outside its picture: ${text.textContent}`);
      const overlaps = last !== null && box.left < last.right - 1 && last.left < box.right - 1 &&
                       box.top < last.bottom - 3 && last.top < box.bottom - 3;
      if (overlaps) problems.push(`over another text: ${text.textContent}`);
      last = box;
    }
  }
  return problems;
}

// Runs in the page. Returns the number of cards, of open cards, and of cards that are visible.
function countCards() {
  const cards = [...document.querySelectorAll('details')];
  const isVisible = (card) => card.querySelector('table').checkVisibility(
      {contentVisibilityAuto: true}) && card.querySelector('table').getBoundingClientRect().height > 0;
  return [cards.length, cards.filter((card) => card.open).length, cards.filter(isVisible).length];
}

async function checkPage(browser, file, name) {
  const page = await browser.newPage();
  page.on('request', (request) => {
    if (!request.url().startsWith('file:')) fail(`${name} loads ${request.url()}`);
  });
  for (const width of [360, 1280]) {
    await page.setViewport({width, height: 900});
    await page.goto(`file://${file}`);
    const [cards, open, visible] = await page.evaluate(countCards);
    if (cards === 0) fail(`${name} has no cards`);
    if (open + visible > 0) fail(`${name}: ${open} cards are open, ${visible} visible`);
    await page.screenshot({path: path.join(pictures, `${name}-${width}.png`)});
    // The cards are measured, too.
    await page.evaluate(() => document.querySelectorAll('details').forEach((card) => card.open = true));
    for (const problem of (await page.evaluate(findProblems)).slice(0, 5)) {
      fail(`${name} at ${width} pixels: ${problem}`);
    }
  }
  await page.goto(`file://${file}`);
  await page.emulateMediaType('print');
  await page.evaluate(() => new Promise((shown) => requestAnimationFrame(() => shown())));
  const [cards, , visible] = await page.evaluate(countCards);
  if (visible !== cards) fail(`${name} prints ${visible} of ${cards} cards`);
  if (cards < 1000) {  // Chromium prints about five pages a second
    await page.pdf({path: path.join(pictures, `${name}.pdf`), format: 'A4', timeout: 0});
  }
  await page.close();
}

async function main() {
  execFileSync(cli, ['demo', install]);
  const pages = [];
  const add = (name, ...words) => pages.push([writePage(words, name), name]);
  add('players', 'players', '--tiebreak', 'usga');
  add('teams', 'teams');
  add('custom', 'custom', '--layout', 'Two best nets');
  renameAll();
  add('names', 'players');
  add('team-names', 'teams');
  enterTimes(10);
  add('some', 'players');
  enterTimes(167);
  add('many', 'players');
  const browser = await puppeteer.launch(
      {executablePath: '/usr/bin/chromium', args: ['--no-sandbox', '--disable-gpu']});
  for (const [file, name] of pages) {
    checkHtml(file);
    await checkPage(browser, file, name);
  }
  await browser.close();
  if (fs.statSync(path.join(folder, 'many.html')).size > 20e6) fail('the page is too large');
  console.log(`${pages.length} pages were checked, ${failures} failures`);
  fs.rmSync(folder, {recursive: true});
  process.exitCode = failures > 0 ? 1 : 0;
}

main();
