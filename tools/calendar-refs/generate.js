#!/usr/bin/env node
// Writes tests/data/calendar-refs/<calendar>.csv: sample day numbers with the
// date that ICU, through node's built-in Intl, gives them, one
// "jd,day,month,year" line each. Months are written in the numbering of the
// program's engine (Hebrew Tishri = 1, Adar II = 7, Nisan = 8 ...).
//
// Each table holds evenly spread random days over the range where the
// reference applies, plus the first day of a year and the day before it for
// a sample of years, where leap rules show. The random sequence is fixed, so
// a re-run gives the same tables.
//
// Usage: node generate.js [output folder]

'use strict';

const fs = require('fs');
const path = require('path');

const UNIX_EPOCH_JD = 2440588;
const LAST_JD = 5373484; // 31 December 9999

function gregorianToJD(y, m, d) {
  const date = new Date(Date.UTC(2000, m - 1, d));
  date.setUTCFullYear(y);
  return Math.round(date.getTime() / 86400000) + UNIX_EPOCH_JD;
}

// A small fixed pseudo-random sequence (LCG), so that the tables are stable.
let seed = 20261123;
function random() {
  seed = (seed * 1103515245 + 12345) % 2147483648;
  return seed / 2147483648;
}

const HEBREW_MONTHS = {
  Tishri: 1, Heshvan: 2, Kislev: 3, Tevet: 4, Shevat: 5, 'Adar I': 6, Adar: 6, 'Adar II': 7,
  Nisan: 8, Iyar: 9, Sivan: 10, Tamuz: 11, Av: 12, Elul: 13,
};

function reader(calendar) {
  const numeric = new Intl.DateTimeFormat(`en-u-ca-${calendar}`, {
    timeZone: 'UTC', year: 'numeric', month: calendar === 'hebrew' ? 'long' : 'numeric',
    day: 'numeric',
  });
  return (jd) => {
    const parts = {};
    for (const p of numeric.formatToParts(new Date((jd - UNIX_EPOCH_JD) * 86400000)))
      parts[p.type] = p.value;
    const month = calendar === 'hebrew' ? HEBREW_MONTHS[parts.month] : parseInt(parts.month, 10);
    if (!month) throw new Error(`${calendar}: unknown month ${parts.month}`);
    return { day: parseInt(parts.day, 10), month, year: parseInt(parts.relatedYear || parts.year, 10) };
  };
}

// ICU follows the published Umm al-Qura table from 1420 to 1450 A.H.: the
// range is taken from the program's own table.
function ummAlQuraRange(firstYear, lastYear) {
  const file = path.join(__dirname, '..', '..', 'data', 'ummalqur.dat');
  const starts = new Map();
  for (const line of fs.readFileSync(file, 'utf8').split(/\r?\n/)) {
    const [year, jd] = line.split(',');
    if (jd) starts.set(parseInt(year, 10), parseInt(jd, 10));
  }
  return [starts.get(firstYear), starts.get(lastYear + 1) - 1];
}
const [UAQ_FIRST, UAQ_LAST] = ummAlQuraRange(1420, 1450);

const TABLES = [
  // name, ICU calendar, first JD, last JD, random days, year starts
  ['hebrew', 'hebrew', 1722000, LAST_JD, 300, 60],
  ['islamic-civil', 'islamic-civil', 1948440, LAST_JD, 300, 60],
  ['islamic-tbla', 'islamic-tbla', 1948439, LAST_JD, 300, 60],
  ['islamic-umalqura', 'islamic-umalqura', UAQ_FIRST, UAQ_LAST, 300, 30],
  ['coptic', 'coptic', 1825030, LAST_JD, 300, 60],
  ['ethiopic', 'ethiopic', 1724221, LAST_JD, 300, 60],
  ['persian', 'persian', gregorianToJD(1800, 1, 1), gregorianToJD(2300, 12, 31), 300, 60],
  ['indian', 'indian', gregorianToJD(1957, 3, 22), LAST_JD, 300, 60],
];

function main() {
  const outDir = process.argv[2] || path.join(__dirname, '..', '..', 'tests', 'data', 'calendar-refs');
  fs.mkdirSync(outDir, { recursive: true });
  for (const [name, calendar, first, last, randomDays, yearStarts] of TABLES) {
    const read = reader(calendar);
    const jds = new Set();
    for (let i = 0; i < randomDays; ++i) jds.add(first + Math.floor(random() * (last - first + 1)));
    for (let i = 0; i < yearStarts; ++i) {
      // Back from a random day to the first of its year.
      let jd = first + 400 + Math.floor(random() * (last - first - 400));
      let d = read(jd);
      while (!(d.day === 1 && d.month === 1)) d = read(--jd);
      jds.add(jd);
      jds.add(jd - 1);
    }
    const rows = [...jds].sort((a, b) => a - b).map((jd) => {
      const d = read(jd);
      return `${jd},${d.day},${d.month},${d.year}`;
    });
    const header = `> ${calendar} dates from ICU ${process.versions.icu}: jd,day,month,year`;
    fs.writeFileSync(path.join(outDir, `${name}.csv`), [header, ...rows].join('\n') + '\n');
    console.log(`${name}: ${rows.length} rows`);
  }
}

main();
