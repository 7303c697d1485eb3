// check_formats.js CLI FOLDER reads files with the parsers that Kaitai Struct's compiler makes from
// the descriptions in FOLDER, and compares every value with the output of CLI dump. The files are
// those of the demonstration and of random installs, whole and cut inside a record.
'use strict';
const { execFileSync, spawnSync } = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');
const compiler = require('kaitai-struct-compiler');
const { KaitaiStream } = require('kaitai-struct');
const yaml = require('yaml');
const { compare, parseLine } = require('./compare.js');

const [cli, folder] = process.argv.slice(2);
const kRandomInstalls = 24;
const kCutInstalls = 3;  // the first ones, of which the demonstration is number 0

// The runtime returns an 8-byte integer as a double, which is wrong for large amounts. This reader
// returns all its digits.
KaitaiStream.prototype.readS8le = function () {
  this.ensureBytesLeft(8);
  const low = BigInt(this.readU4le());
  return (BigInt(this.readS4le()) << 32n) + low;
};

// Some versions of Node.js decode windows-1252 as latin1, which differs in the bytes 0x80 to 0x9F.
const kFrom80To9f = '€\x81‚ƒ„…†‡ˆ‰Š‹Œ\x8dŽ\x8f\x90‘’“”•–—˜™š›œ\x9džŸ';
if (new TextDecoder('windows-1252').decode(Uint8Array.of(0x80)) !== '€') {
  const decode = KaitaiStream.bytesToStr;
  const char = (byte) => kFrom80To9f[byte - 0x80] || String.fromCharCode(byte);
  KaitaiStream.bytesToStr = (bytes, encoding) =>
    encoding === 'windows-1252' ? Array.from(bytes, char).join('') : decode(bytes, encoding);
}

// Returns random numbers from 0 to `limit` - 1, the same ones in each run.
let state = 1;
function random(limit) {
  state = (state + 0x6d2b79f5) | 0;
  let t = Math.imul(state ^ (state >>> 15), 1 | state);
  t = (t + Math.imul(t ^ (t >>> 7), 61 | t)) ^ t;
  return ((t ^ (t >>> 14)) >>> 0) % limit;
}

async function readDescription(name) {
  const ksy = yaml.parse(fs.readFileSync(path.join(folder, name), 'utf8'));
  const sources = await compiler.compile('javascript', ksy, null, false);
  const exported = {};
  new Function('exports', 'require', Object.values(sources)[0])(exported, require);
  const [Parser] = Object.values(exported);
  const files = ksy.doc.split('\n')[0].split(', ');
  const matches = (file) =>
    files.some((p) => (p[0] === '*' ? file.endsWith(p.slice(1)) : file === p));
  const parse = (bytes) => new Parser(new KaitaiStream(new Uint8Array(bytes).buffer)).records;
  return { name, types: ksy.types, length: ksy.seq[0].size, matches, parse, values: 0, cuts: 0 };
}

function dump(file) {
  const ended = spawnSync(cli, ['dump', file, '--json'], { maxBuffer: 1 << 30, encoding: 'utf8' });
  if (ended.status !== 0) throw new Error(`dump ends with ${ended.status}: ${ended.stderr}`);
  const records = ended.stdout.split('\n').filter(Boolean).map(parseLine);
  return { records, problems: ended.stderr };
}

function checkWhole(description, file) {
  const parsed = description.parse(fs.readFileSync(file));
  const { records, problems } = dump(file);
  if (problems) throw new Error(`dump reports ${problems}`);
  if (parsed.length !== records.length) throw new Error(`the parser reads ${parsed.length}`);
  records.forEach((dumped, i) => {
    const seen = new Set(['record']);
    compare(description, 'record', parsed[i], dumped, [], seen);
    const missing = Object.keys(dumped).filter((name) => !seen.has(name));
    if (missing.length > 0) throw new Error(`no description of ${missing}`);
  });
}

function checkCut(description, file) {
  const bytes = fs.readFileSync(file);
  if (bytes.length === 0) return;
  fs.writeFileSync(file, bytes.subarray(0, bytes.length - 1 - random(description.length - 1)));
  let error = null;
  try { description.parse(fs.readFileSync(file)); } catch (caught) { error = caught; }
  if (!(error instanceof KaitaiStream.EOFError)) throw new Error(`cut, the parser: ${error}`);
  const { problems } = dump(file);
  if (!/bytes that are no whole record/.test(problems)) throw new Error(`cut, dump: ${problems}`);
  ++description.cuts;
}

// Changes up to a quarter of the bytes: single bytes and runs of equal ones.
function disturb(file, length) {
  const bytes = fs.readFileSync(file);
  const disturbed = bytes.length > 0 ? bytes : Buffer.alloc(2 * length);
  for (let n = random(disturbed.length / 4 + 2); n > 0; --n) {
    const at = random(disturbed.length);
    const end = Math.min(at + random(64), disturbed.length);
    if (random(50) > 0) disturbed[at] = random(256);
    else disturbed.fill([0, 32, 127, 255][random(4)], at, end);
  }
  fs.writeFileSync(file, disturbed);
}

function checkInstall(descriptions, install, n) {
  for (const folder of ['', 'kvdata', 'qbdata', 'zddata']) {
    for (const name of fs.readdirSync(path.join(install, folder))) {
      const description = descriptions.find(({ matches }) => matches(name.toUpperCase()));
      if (!description) continue;
      const file = path.join(install, folder, name);
      try {
        if (n > 0) disturb(file, description.length);
        checkWhole(description, file);
        if (n < kCutInstalls) checkCut(description, file);
      } catch (error) {
        throw new Error(`${description.name}, install ${n}, ${folder}/${name}: ${error.message}`);
      }
    }
  }
}

async function main() {
  const names = fs.readdirSync(folder).filter((name) => name.endsWith('.ksy'));
  const descriptions = await Promise.all(names.map(readDescription));
  const work = fs.mkdtempSync(path.join(os.tmpdir(), 'golf-formats-'));
  process.on('exit', () => fs.rmSync(work, { recursive: true }));
  const install = path.join(work, 'install');
  for (let n = 0; n <= kRandomInstalls; ++n) {
    execFileSync(cli, ['--now', '2026-05-13 12:00:00', 'demo', install]);
    checkInstall(descriptions, install, n);
    fs.rmSync(install, { recursive: true });
  }
  const unused = descriptions.filter(({ values, cuts }) => values === 0 || cuts === 0);
  if (unused.length > 0) throw new Error(`no file for ${unused.map(({ name }) => name)}`);
  const sum = (key) => descriptions.reduce((total, description) => total + description[key], 0);
  const counts = `${sum('values')} values and ${sum('cuts')} cut files`;
  console.log(`${names.length} descriptions: ${counts} are the same in dump`);
}

main().catch((error) => {
  console.error(`FAILED: ${error.message}`);
  process.exitCode = 1;
});
