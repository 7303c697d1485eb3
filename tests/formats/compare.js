// Compares a parsed record with an object of `dump --json`.
'use strict';

const camelCase = (id) => id.replace(/_([a-z0-9])/g, (all, c) => c.toUpperCase());

// Returns the number of values of each index, and the indexes from the fastest to the slowest, from
// a line such as "by tee 1 to 6 and hole 1 to 18; tee varies fastest".
function tableOf(member) {
  if (!member.repeat) return { counts: [], order: [] };
  const line = member.doc.split('\n').find((text) => text.startsWith('by '));
  const [ranges, order = ''] = line.slice(3).split('; ');
  const range = /^(.*) (-?\d+) to (-?\d+)$/;
  const dimensions = ranges.split(/, | and /).map((text) => text.match(range));
  const names = dimensions.map((dimension) => dimension[1]);
  const fastest = order ? order.replace(' varies fastest', '').split(', then ') : [];
  const rest = names.filter((name) => !fastest.includes(name));
  if (rest.length !== 1) throw new Error(`${member.id}: the order of ${line} is not clear`);
  return {
    counts: dimensions.map(([, , first, last]) => last - first + 1),
    order: [...fastest, ...rest].map((name) => names.indexOf(name)),
  };
}

function indexesOf({ counts, order }, n) {
  const indexes = [];
  for (const i of order) {
    indexes[i] = n % counts[i];
    n = Math.floor(n / counts[i]);
  }
  return indexes;
}

function isSame(member, value, shown) {
  if (!member.type) return Buffer.from(value).toString('hex') === shown;
  if (member.type === 's8') return BigInt(shown) === value;
  if (!/^f/.test(member.type)) return value === shown;
  if (shown === null) return !Number.isFinite(value);
  return Object.is(member.type === 'f4' ? Math.fround(shown) : shown, value);
}

// Compares the members of a parsed type with a dumped record, and adds the names of the fields to
// `seen`. `outer` contains the positions of the entries that contain the type.
function compare(description, type, parsed, dumped, outer, seen) {
  for (const member of description.types[type].seq) {
    const name = member['-orig-id'];
    const value = parsed[camelCase(member.id)];
    const values = member.repeat ? value : [value];
    const table = tableOf(member);
    if (values.length !== table.counts.reduce((a, b) => a * b, 1)) {
      throw new Error(`${member.id} has ${values.length} values, not as its documentation says`);
    }
    values.forEach((one, n) => {
      const indexes = [...outer, ...indexesOf(table, n)];
      if (!name) return compare(description, member.type, one, dumped, indexes, seen);
      const shown = indexes.reduce((array, i) => array[i], dumped[name]);
      if (!isSame(member, one, shown)) {
        throw new Error(`${name}(${indexes}): the parser reads ${one}, dump shows ${shown}`);
      }
      ++description.values;
    });
    if (name) seen.add(name);
  }
}

// Parses a line of JSON. Integers of 16 and more digits become texts, since a double cannot hold
// them.
const parseLine = (line) =>
  JSON.parse(line.replace(/"(?:[^"\\]|\\.)*"|-?\d[\d.eE+-]*/g, (token) =>
    /^-?\d{16,}$/.test(token) ? `"${token}"` : token));

module.exports = { compare, parseLine };
